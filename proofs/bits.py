"""What the provers cannot say of | ^ & << >> among integers, asked as a question about bit vectors.

A function that is one return statement, and whose contract stands under `bits` in place of `function`: z3 looks for
arguments of 32 bits for which the statement, in C's arithmetic modulo 2^32, does not give what the contract says, in
the arithmetic of integers, for which 64 bits are enough here. An axiom about such operators is asked likewise.
"""
import re
import subprocess

import weave

C, ACSL = 32, 64  # bits of a word, and with them whose arithmetic it is
LEVELS = ("<==>", "==>", "?", "||", "&&", "|", "^", "&", "== !=", "< <= > >=", "<< >>", "+ -", "* %")
LEVEL = {operator: level for level, operators in enumerate(LEVELS, 1) for operator in operators.split()}
NAMES = {"|": "bvor", "^": "bvxor", "&": "bvand", "<<": "bvshl", "+": "bvadd", "-": "bvsub", "*": "bvmul"}
SIGNED = {C: {">>": "bvlshr", "%": "bvurem", "<": "bvult", "<=": "bvule", ">": "bvugt", ">=": "bvuge"},
          ACSL: {">>": "bvashr", "%": "bvsrem", "<": "bvslt", "<=": "bvsle", ">": "bvsgt", ">=": "bvsge"}}

TYPES = {"uint32_t": 32, "int32_t": -32, "quvex_wide": 16, "quvex_narrow": 8}  # negative: with a sign


class Expression:
    """An expression of C or ACSL as a term of SMT-LIB, "Bool" or "Word"; `called` are the functions that it may use."""

    def __init__(self, text, values, called, bits):
        self.tokens = re.findall(r"<==>|==>|<<|>>|[<>=!]=|&&|\|\||'.'|\\?\w+|\S", text) + [""]
        self.values, self.called, self.bits, self.declared = values, called, bits, []

    def next(self, wanted=None):
        token = self.tokens.pop(0)
        if wanted not in (None, token):
            raise weave.Failure(f"does not know how to say in bits: {token} {' '.join(self.tokens)}")
        return token

    def word(self, term):
        return term[0] if term[1] == "Word" else f"(ite {term[0]} {self.number(1)} {self.number(0)})"

    def truth(self, term):
        return term[0] if term[1] == "Bool" else f"(not (= {term[0]} {self.number(0)}))"

    def number(self, value):
        return f"(_ bv{value} {self.bits})"

    def term(self, level=0):
        left = self.primary()
        while LEVEL.get(self.tokens[0], 0) > level:
            operator = self.next()
            own = LEVEL[operator]
            if operator == "?":
                yes = self.term()
                self.next(":")
                no = self.term(own - 1)
                same = yes[1] == no[1] == "Bool"
                left = f"(ite {self.truth(left)} {yes[0] if same else self.word(yes)} {no[0] if same else self.word(no)})", yes[1] if same else "Word"
            elif operator in ("<==>", "==>", "&&", "||"):
                right = self.term(own - (operator == "==>"))
                name = {"<==>": "=", "==>": "=>", "&&": "and", "||": "or"}[operator]
                left = f"({name} {self.truth(left)} {self.truth(right)})", "Bool"
            elif own >= LEVEL["=="] and own <= LEVEL["<"]:
                said = []
                while True:  # ACSL's a <= b <= c is a <= b and b <= c
                    right = self.term(LEVEL["<"])
                    equal = f"(= {self.word(left)} {self.word(right)})"
                    said.append({"==": equal, "!=": f"(not {equal})"}.get(operator) or f"({SIGNED[self.bits][operator]} {self.word(left)} {self.word(right)})")
                    left = right
                    if LEVEL.get(self.tokens[0]) != LEVEL["<"]:
                        break
                    operator = self.next()
                left = f"(and {' '.join(said)})", "Bool"
            else:
                name = {**NAMES, **SIGNED[self.bits]}[operator]
                left = f"({name} {self.word(left)} {self.word(self.term(own))})", "Word"
        return left

    def primary(self):
        token = self.next()
        if token == "\\forall":  # refuted by one that exists
            self.next("integer")
            while (name := self.next()) != ";":
                if name != ",":
                    self.declared.append(name)
                    self.values = {**self.values, name: (name, "Word")}
            return self.term()
        if token == "(":
            if self.tokens[0] in TYPES:
                kept = TYPES[self.next()]
                self.next(")")
                inner = self.word(self.primary())
                more = f"(_ {'sign' if kept < 0 else 'zero'}_extend {self.bits - abs(kept)})"
                return f"({more} ((_ extract {abs(kept) - 1} 0) {inner}))", "Word"
            inner = self.term()
            self.next(")")
            return inner
        if token == "!":
            return f"(not {self.truth(self.primary())})", "Bool"
        if token == "-":
            return f"(bvneg {self.word(self.primary())})", "Word"
        if token[0] == "'":
            return self.number(ord(token[1])), "Word"
        if re.fullmatch(r"0x[0-9a-fA-F]+|\d+", token):
            return self.number(int(token, 0)), "Word"
        if token in self.values:
            return self.values[token]
        if token in self.called and self.tokens[0] == "(":
            given = []
            while self.next() != ")":
                given.append(self.term())
            names, text = self.called[token]
            return Expression(text, dict(zip(names, given)), self.called, self.bits).term()
        raise weave.Failure(f"does not know how to say in bits: {token} {' '.join(self.tokens)}")


def refuted(names, claim):
    """The question for z3 whether there are numbers of these names and widths that make the claim false."""
    return "".join([*(f"(declare-const {name} (_ BitVec {bits}))\n" for name, bits in names), f"(assert (not {claim}))\n(check-sat)\n"])


def contract(name, functions, definitions, text):
    """The question whether a function breaks its contract, which `text` begins with."""
    names, statement = functions[name]
    body = Expression(statement, {each: (each, "Word") for each in names}, functions, C)
    result = body.term()
    wide = f"(_ zero_extend {ACSL - C})"
    values = {each: (f"({wide} {each})", "Word") for each in names}
    values["\\result"] = result if result[1] == "Bool" else (f"({wide} {result[0]})", "Word")
    declared, claims = [(each, C) for each in names], []
    for ensured in re.findall(r"ensures ((?:\\forall[^;]*;)?[^;]*);", text.split("*/")[0]):
        claim = Expression(ensured, values, definitions, ACSL)
        claims.append(claim.truth(claim.term()))
        declared += [(each, ACSL) for each in claim.declared]
    return refuted(declared, f"(and {' '.join(claims)})")


def confirmed(claim, definitions):
    """Whether an axiom is one about integers, and true of those of 64 bits."""
    try:
        expression = Expression(claim, {}, definitions, ACSL)
        said = expression.truth(expression.term())
        return holds(refuted([(each, ACSL) for each in expression.declared], said))
    except weave.Failure:
        return False


def holds(question):
    return subprocess.run(["z3", "-in", "-T:60"], input=question, stdout=subprocess.PIPE, text=True).stdout.strip() == "unsat"
