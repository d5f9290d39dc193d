"""The C of one family of sources with its annotations woven in, for Frama-C.

The C is what scripts/amalgamate writes; the annotations are those of proofs/*.acsl, whose sections are

    function NAME        the contract of a function or template of src/, or of an export that calls none
    operation NAME is F  the export of that readable name promises what F does: a template of src/, its parameters of
                         template, and arguments in the words of the header; without a line, the template of that name
    bits NAME            likewise, proved by a question about bit vectors (bits.py)
    before LINE          what stands before this line of it: the annotation of a loop, an assertion
    after LINE           what stands after it; `before #2 LINE` means the second such line
    uses WORD ...        the vocabularies of the family that the file is named after
    vocabulary WORD      definitions; `vocabulary WORD of OTHER` needs those of OTHER. One that calls itself has a line
                         `measure NAME = EXPRESSION`: what is less in each such call and never below zero in one
    lowered OLD          a statement that is proved in another form, which follows, with the reason above

each followed by its indented text. In a text, Unit and the parameters of a template stand for what they are in the
instance, and @@ for its width. A vocabulary that says Unit is there for both widths. A line that the source no longer
has is an error.
"""
import importlib.machinery
import importlib.util
import json
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent


def script(name):
    """A program of scripts/ as a module."""
    loader = importlib.machinery.SourceFileLoader(name, str(ROOT / "scripts" / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(name, loader))
    loader.exec_module(module)
    return module


amalgamate = script("amalgamate")
Failure, WIDTHS = amalgamate.Failure, amalgamate.WIDTHS
# Of each link name: the readable name of the operation, and the names of its parameters, as the header has them.
HEADER = {link["link"]: (each["name"], [name for _, name in link["parameters"]])
          for each in json.loads(subprocess.check_output([ROOT / "scripts/operations", "--json"])) for link in each["links"]}


class Annotations:
    def __init__(self, folder=ROOT / "proofs"):
        self.contracts, self.places, self.vocabulary, self.uses, self.lowered = {}, {}, {}, {}, {}
        self.bits, self.operations = set(), {}
        for path in sorted(folder.glob("*.acsl")):
            function = text = None
            for number, line in enumerate(path.read_text().splitlines(), 1):
                at = f"{path.relative_to(folder.parent)}:{number}"
                if line.startswith("//") or not line.strip():
                    continue
                if line.startswith(" ") and text is not None:
                    text.append(line.strip())
                    continue
                if line.startswith("uses "):
                    self.uses[path.stem] = line.split()[1:]
                    continue
                if found := re.fullmatch(r"operation (\w+) is (.*)", line):
                    self.operations[found[1]] = found[2]
                    continue
                text = []
                if found := re.fullmatch(r"(function|bits) (\w+)", line):
                    function = found[2]
                    if found[1] == "bits":
                        self.bits.add(function)
                    if function in self.contracts:
                        raise Failure(f"{at}: a second contract of {function}")
                    self.contracts[function], self.places[function] = text, []
                elif (found := re.fullmatch(r"(before|after)(?: #(\d+))? (\S.*)", line)) and function:
                    self.places[function].append((found[1], int(found[2] or 1), found[3], text, at))
                elif found := re.fullmatch(r"vocabulary (\w+)(?: of (.*))?", line):
                    self.vocabulary[found[1]] = (text, (found[2] or "").split())
                elif found := re.fullmatch(r"lowered (\S.*)", line):
                    self.lowered[found[1]] = text
                else:
                    raise Failure(f"{at}: not understood: {line}")


def marked(body, original, name, places):
    """A body with a mark for each of its annotations; `original` is the body whose lines are looked for."""
    lines, marks = original.split("\n"), {}
    for index, (where, nth, key, _, at) in enumerate(places):
        found = [number for number, line in enumerate(lines) if line.split("//")[0].strip() == key]
        if len(found) < nth:
            raise Failure(f"{at}: {name} has no line: {key}")
        marks.setdefault(found[nth - 1] + (where == "after"), []).append(f"QUVEX_MARK_{name}_{index};")
    result = []
    for number, line in enumerate(body.split("\n")):
        result += [*marks.get(number, []), line]
    return "\n".join(result)


class Woven(amalgamate.Translation):
    """The translation to C, annotated. `originals` are the sources that the annotations were written for."""

    def __init__(self, files, annotations, originals=None):
        super().__init__(files)
        self.annotations = annotations
        before = amalgamate.Translation(originals).functions if originals else self.functions
        unknown = set(annotations.contracts) - {name for _, name in before}
        if unknown:
            raise Failure(f"annotated, but not in src/: {', '.join(sorted(unknown))}")
        for (scope, name), overloads in self.functions.items():
            if name in annotations.places and not scope:
                overloads[0].body = marked(overloads[0].body, before[scope, name][0].body, name, annotations.places[name])

    @staticmethod
    def filled(lines, function, values, width):
        """The text of an annotation for one instance."""
        text = "\n".join(lines)
        for (_, policy), value in zip(function.policies, values):
            text = re.sub(rf"\b{policy}\b", {"true": "1", "false": "0"}.get(value, amalgamate.casts(value)), text)
        return re.sub(r"\bUnit\b", WIDTHS.get(width, "Unit"), text).replace("@@", width or "")

    def lowered(self, function, values, width):
        text = super().lowered(function, values, width)
        for index, (_, _, _, lines, _) in enumerate(self.annotations.places.get(function.name, [])):
            inside = self.filled(lines, function, values, width)
            text = text.replace(f"QUVEX_MARK_{function.name}_{index};", f"/*@ {inside} */" if inside else "")
        for old, new in self.annotations.lowered.items():
            text = text.replace(old, " ".join(new))
        contract = self.contract(function, values, width)
        return f"/*@ {contract} */\n{text}" if contract else text

    def contract(self, function, values=(), width=None):
        if function.scope:  # it forwards to an export
            return self.contract(self.functions[None, re.search(r"QUVEX_\d{6}", function.body)[0]][0])
        if function.name in self.annotations.contracts:
            return self.filled(self.annotations.contracts[function.name], function, values, width)
        if not function.name.startswith("QUVEX_"):
            return None
        name, words = HEADER[function.name]
        if [re.search(r"\w+$", parameter)[0] for parameter in function.parameters] != words:
            raise Failure(f"{function.name}: the header calls the parameters {', '.join(words)}")
        called = re.fullmatch(r"(\w+)(?:<(.*)>)?\((.*)\)", self.annotations.operations.get(name, f"{name}({', '.join(words)})"))
        if called[1] not in self.annotations.contracts:
            return None
        target = self.functions[None, called[1]][0]
        width = next((width for width, unit in WIDTHS.items() if unit in ", ".join(function.parameters)), None)
        text = self.filled(self.annotations.contracts[called[1]], target, amalgamate.arguments(called[2] or ""), width)
        for parameter, argument in zip(target.parameters, amalgamate.arguments(called[3]), strict=True):
            text = re.sub(rf"(?<![\\\w]){re.search(r'[A-Za-z_]+$', parameter)[0]}\b", argument, text)
        return text

    def definitions(self):
        """The logic functions and predicates that look at no memory: their parameters and text."""
        text = "\n".join(line for lines, _ in self.annotations.vocabulary.values() for line in lines)
        return {name: (re.findall(r"(\w+)(?:,|$)", parameters), definition) for name, parameters, definition in
                re.findall(r"^(?:predicate|logic \w+) (\w+)\(([^)]*)\) = ([^;]*);", text, re.M)}

    def vocabulary(self, words):
        done = []

        def need(word):
            if word not in self.annotations.vocabulary:
                raise Failure(f"no vocabulary {word}")
            text, others = self.annotations.vocabulary[word]
            for other in others:
                need(other)
            if text not in done:
                done.append(text)

        for word in words:
            need(word)
        for text in (with_measures("\n".join(lines)) for lines in done):
            if re.search(r"\bUnit\b|@@", text):
                for width, unit in WIDTHS.items():
                    yield "/*@ " + re.sub(r"\bUnit\b", unit, text).replace("@@", width) + " */\n"
            else:
                yield f"/*@ {text} */\n"

    def family(self, stem, form):
        """src/*/STEM.cpp as annotated C: its text, its functions by name, and the operations of others that it calls."""
        exports, compiler, bodies, functions = [], [], [], {}
        for path, place in self.parts:
            for item in place:
                if path.stem == stem and isinstance(item, amalgamate.Function) and item.name.startswith("QUVEX_"):
                    exports.append(item.name)
                    self.ask(item, (), None)
        for path, place in self.parts:
            if path.suffix == ".cpp" and path.stem != stem:
                continue
            for item in place:
                if isinstance(item, amalgamate.Function):
                    for values, width in sorted(item.instances, key=lambda one: one[1] == "wide"):
                        bodies.append(self.lowered(item, values, width))
                        functions[item.title(values, width) if values or width else item.name] = bodies[-1]
                elif not item.startswith("//"):
                    text = f"static {item}" if item.startswith("const ") else amalgamate.casts(item)
                    (compiler if path.name == "quvex_compiler.h" else bodies).append(text)
        header = (ROOT / "include/quvex.h").read_text()
        called = {}
        for name in sorted(set(re.findall(r"QUVEX_\d{6}", without_annotations("".join(bodies)))) - set(exports)):
            contract = self.contract(self.functions[None, name][0])
            if not contract:
                raise Failure(f"{stem} calls {name}, which has no contract")
            called[name] = f"/*@ {contract} */\n" + re.search(rf"^QUVEX_NOTHROW ([^;]*\b{name}\([^;]*;)", header, re.M)[1]
        text = "\n".join(["#define __OPTIMIZE_SIZE__" if form == "size" else "", "#include <stdbool.h>", '#include "quvex.h"',
                          "#define __builtin_expect(value, expected) (value)", *compiler,
                          *self.vocabulary(self.annotations.uses.get(stem, ["text"])), *called.values(), *bodies])
        text = re.sub(r"^ *QUVEX_(UNROLL\(\d+\)|ROLLED)\n", "", text, flags=re.M)
        return for_frama_c(text), functions, exports, list(called)


def with_measures(text):
    """Definitions, with a lemma in place of each measure: that what is defined by recursion comes to an end."""
    measures = {}

    def taken(found):
        measures[found[1]] = found[2]
        return ""

    text = re.sub(r"^measure (\w+) = (.*)\n", taken, text + "\n", flags=re.M)
    for kind, name, label, parameters, body in re.findall(r"^(logic [\w*]+|predicate) (\w+)(\{L\})?\(([^)]*)\)\s*= ([^;]*);", text, re.M):
        names = re.findall(r"(\w+)(?:,|$)", parameters)
        for number, (conditions, given) in enumerate(calls(body, name), 1):
            if name not in measures:
                raise Failure(f"{name} calls itself and has no measure")
            less = re.sub(r"\w+", lambda found: f"({given[names.index(found[0])]})" if found[0] in names else found[0], measures[name])  # noqa: B023
            width = "_@@" if "Unit" in parameters else ""
            text += f"check lemma {name}_ends_{number}{width}{label}: \\forall {parameters};\n" + \
                f"{' && '.join(f'({each})' for each in conditions)} ==> 0 <= {measures[name]} && {less} < {measures[name]};\n"
    return text.rstrip("\n")


def calls(text, name):
    """The calls of a function in an expression: on what conditions each is made, and with what."""
    depths = [0]
    for each in text:
        depths.append(depths[-1] + (each in "([") - (each in ")]"))
    if text.startswith("(") and 0 not in depths[1:-1]:
        yield from calls(text[1:-1], name)
    elif asked := next((at for at, each in enumerate(text) if each == "?" and not depths[at]), None):
        ended, open_ones = asked, 1
        while open_ones:
            ended += 1
            open_ones += (text[ended] == "?" and not depths[ended]) - (text[ended] == ":" and not depths[ended])
        for sign, part in (("", text[asked + 1:ended]), ("!", text[ended + 1:])):
            for conditions, given in calls(part.strip(), name):
                yield [f"{sign}({text[:asked].strip()})", *conditions], given
    else:
        for found in re.finditer(rf"\b{name}(?:\{{L\}})?\(", text):
            end = next(at for at in range(found.end(), len(text) + 1) if depths[at] < depths[found.end()])
            yield [], amalgamate.arguments(text[found.end():end - 1])


def statement(text):
    """Parameters and expression of a function that is one return statement; None of any other."""
    found = re.search(r"\(([^()]*)\) \{\s*return ([^;]*);\s*\}\s*\Z", without_annotations(text))
    return found and (re.findall(r"(\w+)(?:,|$)", found[1]), found[2])


def without_annotations(text):
    return re.sub(r"/\*@.*?\*/", "", text, flags=re.S)


def for_frama_c(text):
    """Pointers to const units are pointers to units, since the provers compare only pointers of one type; and `set` is a
    word of ACSL."""
    return re.sub(r"\bset\b", "charset", re.sub(r"\bconst (quvex_\w+)\*", r"\1*", text))
