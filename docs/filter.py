#!/usr/bin/env python3
"""What Doxygen reads for a public header: quvex.h with a heading, cost and example for each operation.

Doxygen calls it with the header's name; the header itself stays plain text. Of the two headers of readable names, only
the introduction is passed on: their operations stand with those of quvex.h.
"""
import csv
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Link number, then readable name and arguments.
ROWS = r"^OPERATION\((\d+), (\w+), .*, (\(.*\))\)$"
NAMES = {row[0]: row[1:] for row in re.findall(ROWS, (ROOT / "tests/consumers/operations.inc").read_text(), re.M)}
EXAMPLES = dict(re.findall(r"^## (\w+)\n\n(.*?)(?=^## |\Z)", (ROOT / "docs/examples.md").read_text(), re.M | re.S))


def costs():
    """What scripts/report measured: link name, then columns under their own headings. Empty before it has run."""
    file = ROOT / "docs/costs.csv"
    if not file.exists():
        return [], {}
    heading, *rows = csv.reader(line for line in file.open() if not line.startswith("#"))
    return heading[1:], {row[0]: row[1:] for row in rows}


def paragraphs(text):
    """A comment as Markdown, which takes four blanks for code: a line that ends a sentence ends a paragraph."""
    return re.sub(r"(?<=\.)\n", "\n\n", re.sub(r"^ +", "", text, flags=re.M))


def operation(match):
    """A contract and its twins as a group of members under the readable name."""
    contract, declarations = match[1], match[2].replace("QUVEX_NOTHROW ", "")
    numbers = re.findall(r"QUVEX_(\d+)", declarations)
    name, arguments = NAMES[numbers[0]]
    lines = [f"/** @name {name}", f"@anchor operation_{name} `quvex::{name}{arguments}` in C++, `quvex_{name}{arguments}` in C", "", paragraphs(contract), ""]
    heading, cost = costs()
    if cost:
        lines += ["| | " + " | ".join(heading) + " |", "|---|" + "---|" * len(heading)]
        lines += [f"| QUVEX_{number} | " + " | ".join(cost[f"QUVEX_{number}"]) + " |" for number in numbers]
    code, output = re.fullmatch(r"```cpp\n(.*?)```\n```text\n(.*?)```\n*", EXAMPLES[name], re.S).groups()
    lines += ["", "@code{.cpp}", code.rstrip(), "@endcode", "prints", "@code{.unparsed}", output.rstrip(), "@endcode"]
    # Each twin has a line of its own, so that a search for its link name finds it.
    twins = ("narrow", "wide") if len(numbers) == 2 else ("only",)
    for number, twin in zip(numbers, twins):
        line = f'/** The {twin} @ref operation_{name} "{name}". */\n'
        declarations = re.sub(rf"^(?=.*QUVEX_{number})", line, declarations, flags=re.M)
    return "\n".join(lines) + f"\n@{{ */\n{declarations}/** @}} */\n"


def section(match):
    """A family as a topic: its title, and what holds for all of it."""
    title, _, general = match[1].partition(": ")
    general = general and general[0].upper() + general[1:] + "."
    slug = re.sub(r"\W+", "_", title.lower())
    return f"/** @}} */\n/** @defgroup quvex_{slug} {title}\n{general}\n\n{paragraphs(match[2] or '')}\n@{{ */\n"


def main(name):
    text = pathlib.Path(name).read_text()
    if pathlib.Path(name).name != "quvex.h":
        print(re.match(r"/\*\*.*?\*/", text, re.S)[0])
        return
    text = re.sub(r"/\*\* ((?:(?!\*/).)*?) ?\*/\n((?:QUVEX_NOTHROW [^;]*;\n)+)", operation, text, flags=re.S)
    text = re.sub(r"/\* ---- (.*?) ----(?:\n\n(.*?))? ?\*/\n", section, text, flags=re.S)
    text = text.replace("/** @} */\n/** @defgroup", "/** @defgroup", 1)
    print(re.sub(r"(#ifdef __cplusplus\n\}\n)", r"/** @} */\n\1", text))


main(sys.argv[1])
