#!/usr/bin/env python3
"""What Doxygen reads for a public header: quvex.h with a heading, the cost and an example for each operation; of the
headers of readable names the introduction and each call as a caller writes it, with a link to its operation.

    docs/filter.py HEADER          called by Doxygen; the header itself stays plain text
    docs/filter.py --operations    the page that lists them all
"""
import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COMMENT = r"(?:(?!\*/).)*?"
LIST = json.loads(subprocess.check_output([ROOT / "scripts/operations", "--json"]))
SUMMARIES = {each["name"]: each["summary"] for each in LIST}
ARGUMENTS = {each["name"]: ", ".join(name for _, name in each["links"][0]["parameters"]) for each in LIST}
EXAMPLES = dict(re.findall(r"^## (\w+)\n\n(.*?)(?=^## |\Z)", (ROOT / "docs/examples.md").read_text(), re.M | re.S))


def table(heading):
    """The table below a heading of the measurements: its first column, then the others under their own headings."""
    text = (ROOT / "docs/measurements.md").read_text().split(f" {heading}\n", 1)[1]
    head, _, *rows = ([cell.strip(" `") for cell in line.strip("|").split("|")]
                      for line in re.search(r"(^\|.*\n)+", text, re.M)[0].splitlines())
    return {row[0]: [(name, cell) for name, cell in zip(head, row)][1:] for row in rows}


BYTES, INSTRUCTIONS = table("Flash and stack of each operation"), table("Instructions")


def cost(name, twin):
    """Flash, stack and instructions of one twin, built for size and for speed by GCC."""
    kept = dict(BYTES.get(f"{name}, {twin}") or BYTES[name])
    cells = [cell for _, cell in INSTRUCTIONS[name][:4] if cell != "–"]  # narrow and wide for speed, then for size
    speed, size = cells[twin == "wide"::len(cells) // 2]
    return [kept["gcc size"], kept["gcc speed"], kept["stack: gcc size"], kept["stack: gcc speed"], size, speed]


def proof(name):
    """What is proved of an operation, and what it rests on."""
    found = re.search(rf"^\| `{name}` \| (.*) \| (.*) \| (.*) \|$", (ROOT / "docs/proofs.md").read_text(), re.M)
    size, speed = (re.sub(", open:.*", "", each) for each in found.groups()[:2])
    said = f"{size}, built for size or for speed" if size == speed else f"built for size {size}, for speed {speed}"
    rests = f", resting on {found[3]}" if found[3] != "–" and size == "proved" else ""
    return f'For strings of any length: {said}{rests}; see @ref md_docs_proofs "Proofs".'


def paragraphs(text):
    """A comment as Markdown, which takes four blanks for code: a line that ends a sentence ends a paragraph."""
    return re.sub(r"(?<=\.)\n", "\n\n", re.sub(r"^ +", "", text, flags=re.M))


def operation(match):
    """A contract and its twins as a group of members under the readable name."""
    contract, declarations = match[1], match[2].replace("QUVEX_NOTHROW ", "")
    numbers = re.findall(r"QUVEX_(\d+)", declarations)
    name, contract = re.match(r"`(\w+)`[^:]*: (.*)", contract, re.S).groups()
    contract, arguments = contract[0].upper() + contract[1:], f"({ARGUMENTS[name]})"
    lines = [f"/** @name {name}", f"@anchor operation_{name} `quvex::{name}{arguments}` in C++, `quvex_{name}{arguments}` in C", "", paragraphs(contract), ""]
    twins = ("narrow", "wide") if len(numbers) == 2 else ("only",)
    lines += ["Measured on a Cortex-M4, built by GCC for size and for speed; for n units of text."]
    lines += ["", "| | bytes: size | speed | stack: size | speed | instructions: size | speed |", "|---|" + "---|" * 6]
    lines += [f"| {twin} | " + " | ".join(cost(name, twin)) + " |" for twin in twins]
    lines += ["", proof(name)]
    code, output = re.fullmatch(r"```cpp\n(.*?)```\n```text\n(.*?)```\n*", EXAMPLES[name], re.S).groups()
    lines += ["", "@code{.cpp}", code.rstrip(), "@endcode", "prints", "@code{.unparsed}", output.rstrip(), "@endcode"]
    lines += ["", f'<a href="quvex.html#{name}">See it at work, unit by unit</a>']
    # Each twin has a line of its own, so that a search for its link name finds it.
    for number, twin in zip(numbers, twins):
        line = f'/** The {twin} @ref operation_{name} "{name}". */\n'
        declarations = re.sub(rf"^(?=.*QUVEX_{number})", line, declarations, flags=re.M)
    return "\n".join(lines) + f"\n@{{ */\n{declarations}/** @}} */\n"


def section(match):
    """A family as a topic: its title, what holds for all of it, its operations."""
    title, _, general = match[1].partition(": ")
    general = general and general[0].upper() + general[1:] + "."
    names = dict.fromkeys(re.findall(r"@anchor operation_(\w+)", match[3]))
    links = ", ".join(f'@ref operation_{name} "{name}"' for name in names)
    return (f"/** @defgroup quvex_{re.sub(r'[^a-z]+', '_', title.lower())} {title}\n{general}\n\n"
            f"{paragraphs(match[2] or '')}\n\n{links}\n@{{ */\n{match[3]}/** @}} */\n")


def calls():
    """Result, name and parameters of each call in quvex.hpp, as often as it has forms."""
    text = (ROOT / "include/quvex.hpp").read_text().split("// ---- Length and copy ----")[1]
    for result, name, parameters in re.findall(r"^QUVEX_FORWARD ([^()]*?) ?(\w+)\(([^{}]*?)\) noexcept \{", text,
                                               re.M | re.S):
        if not parameters.startswith("null ") and "null_type" not in parameters:  # forms of the same call
            names = [each.split()[-1] for each in re.sub(r"<[^()]*?>", "", parameters).split(",")]
            yield "pointer" if "pointer" in result or "*" in result else result, name, ", ".join(names)


def macros(header):
    """Name and parameters of each call in C."""
    text = (ROOT / "include" / header).read_text()
    for name, parameters in re.findall(r"^#define (quvex_\w+|QUVEX_(?:ESCAPE|WIDEN)(?:_SIZED)?)\(([a-z, ]+)\)", text, re.M):
        yield name.lower().removesuffix("_sized"), parameters


def described(name):
    """What a call of the readable names does, and where its contract stands."""
    operation = next(each for each in sorted(SUMMARIES, key=len, reverse=True) if name.startswith(each))
    more = {"": "", "_bounded": ", with a size", "_unbounded": ", bounded by nothing"}[name.removeprefix(operation)]
    return f"/** @ref operation_{operation} \"{operation}\": {SUMMARIES[operation]}{more}. */"


def layer(header):
    """A header of readable names: its introduction, then its calls in the order of the operations."""
    text = re.match(r"/\*\*.*?\*/", (ROOT / "include" / header).read_text(), re.S)[0]
    if header == "quvex.hpp":
        print(text, "namespace quvex {", sep="\n")
        for result, name, parameters in calls():
            print(described(name), f"{result} {name}({parameters});", sep="\n")
        print("}")
    elif header == "quvex_names.h":
        print(text)
        results = {name: result for result, name, _ in calls()}
        for name, parameters in macros(header):
            plain = name.removeprefix("quvex_")
            print(described(plain), f"{results[plain]} {name}({parameters});", sep="\n")
    elif header == "quvex_line.h":
        entry = r"    - `(\w+)\(([a-z, ]+)\)`: (.*?)(?=    - `|\*/)"
        entries = re.findall(entry, text, re.S)
        print(re.sub(entry, "", text, flags=re.S))
        for name, parameters, what in entries:
            comment = f"/** {(what[0].upper() + what[1:]).strip()} */"
            result = "pointer" if name == "next_field" else name.removeprefix("read_")
            print(f"namespace quvex {{\n{comment}\n{result} {name}({parameters});\n}}", comment,
                  f"{result} quvex_{name}({parameters});", sep="\n")
        for name, parameters in macros(header):
            if name.removeprefix("quvex_") not in [each[0] for each in entries]:
                result = "void" if name.startswith("quvex_add") else "quvex_text"
                print(f"/** Part of a text of fixed capacity. */\n{result} {name}({parameters});")


def operations():
    """All operations by family, as a page of Markdown."""
    print("# Operations {#operations}\n\nThe [conventions](@ref quvex.h) hold for all of them: units, terminator, null, sizes,"
          " overlap. Each is `quvex::name` in C++ and `quvex_name` in C; below stand the link names, narrow first.\n")
    for family in dict.fromkeys(each["family"] for each in LIST):
        print(f"## {family}\n\n| operation | what it does |\n|---|---|")
        for each in (each for each in LIST if each["family"] == family):
            links = " ".join(link["link"] for link in each["links"])
            print(f"| @ref operation_{each['name']} \"{each['name']}\" <small>{links}</small> | {each['summary']} |")
        print()


def main(name):
    if name == "--operations":
        return operations()
    if pathlib.Path(name).name != "quvex.h":
        return layer(pathlib.Path(name).name)
    text = pathlib.Path(name).read_text()
    text = re.sub(rf"/\*\* ({COMMENT}) ?\*/\n((?:QUVEX_NOTHROW [^;]*;\n)+)", operation, text, flags=re.S)
    text = re.sub(rf"/\* ---- ({COMMENT}) ----(?:\n\n({COMMENT}))? ?\*/\n(.*?)(?=/\* ----|#ifdef __cplusplus\n\}})", section,
                  text, flags=re.S)
    print(text)


main(sys.argv[1])
