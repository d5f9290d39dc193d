"""What cvc4 and z3 cannot say of | ^ & << >> among integers: a function's contract as a question about bit vectors.

A function of one return statement whose contract stands under `bits` in place of `function`: z3 looks for arguments of
32 bits for which the statement, with C's arithmetic modulo 2^32, does not give what the contract says, with the
arithmetic of integers, for which 64 bits are enough here.
"""
import ast
import re
import subprocess

import weave

MODULO, INTEGER = 32, 64
BINARY = {ast.BitOr: "bvor", ast.BitXor: "bvxor", ast.BitAnd: "bvand", ast.Add: "bvadd", ast.Sub: "bvsub", ast.Mod: "bvurem",
          ast.LShift: "bvshl", ast.RShift: "bvlshr", ast.Mult: "bvmul"}
ORDER = {MODULO: {ast.Lt: "bvult", ast.LtE: "bvule", ast.Gt: "bvugt", ast.GtE: "bvuge"},
         INTEGER: {ast.Lt: "bvslt", ast.LtE: "bvsle", ast.Gt: "bvsgt", ast.GtE: "bvsge"}}


class Question:
    """Expressions of C and of ACSL as terms of SMT-LIB; `definitions` are the logic functions and predicates."""

    def __init__(self, functions, definitions, width):
        self.functions, self.definitions, self.width = functions, definitions, width

    def term(self, text, values):
        text = re.sub(r"'(.)'", lambda found: str(ord(found[1])), text)
        if len(sides := text.split("<==>")) == 2:
            text = f"({sides[0]}) == ({sides[1]})"
        for old, new in ((r"&&", " and "), (r"\|\|", " or "), (r"!(?!=)", " not "), (r"\\result\b", "_result")):
            text = re.sub(old, new, text)
        if found := re.fullmatch(r"([^?]*)\?([^:]*):(.*)", text):
            text = f"({found[2]}) if ({found[1]}) else ({found[3]})"
        return self.of(ast.parse(text.strip(), mode="eval").body, values)

    def truth(self, node, values):
        term, kind = self.of(node, values)
        return term if kind == "Bool" else f"(not (= {term} (_ bv0 {self.width})))"

    def word(self, node, values):
        term, kind = self.of(node, values)
        return term if kind == "Word" else f"(ite {term} (_ bv1 {self.width}) (_ bv0 {self.width}))"

    def of(self, node, values):
        if isinstance(node, ast.Constant):
            return f"(_ bv{node.value} {self.width})", "Word"
        if isinstance(node, ast.Name):
            return values[node.id]
        if isinstance(node, ast.IfExp):
            return f"(ite {self.truth(node.test, values)} {self.word(node.body, values)} {self.word(node.orelse, values)})", "Word"
        if isinstance(node, ast.BoolOp):
            name = "and" if isinstance(node.op, ast.And) else "or"
            return f"({name} {' '.join(self.truth(each, values) for each in node.values)})", "Bool"
        if isinstance(node, ast.UnaryOp) and isinstance(node.op, ast.Not):
            return f"(not {self.truth(node.operand, values)})", "Bool"
        if isinstance(node, ast.BinOp):
            return f"({BINARY[type(node.op)]} {self.word(node.left, values)} {self.word(node.right, values)})", "Word"
        if isinstance(node, ast.Compare):
            parts = [self.word(each, values) for each in [node.left, *node.comparators]]
            said = []
            for left, operator, right in zip(parts, node.ops, parts[1:]):
                name = ORDER[self.width].get(type(operator), "=")
                said.append(f"({name} {left} {right})" if not isinstance(operator, ast.NotEq) else f"(not (= {left} {right}))")
            return f"(and {' '.join(said)})", "Bool"
        if isinstance(node, ast.Call):
            given = [self.of(each, values) for each in node.args]
            parameters, text = (self.functions if node.func.id in self.functions else self.definitions)[node.func.id]
            return self.term(text, dict(zip(parameters, given)))
        raise weave.Failure(f"does not know how to say in bits: {ast.unparse(node)}")


def query(name, functions, definitions, contract):
    """The question whether a function of `functions` breaks its contract, for z3."""
    names, statement = functions[name]
    result, kind = Question(functions, definitions, MODULO).term(statement, {each: (each, "Word") for each in names})
    wider = f"(_ zero_extend {INTEGER - MODULO})"
    values = {each: (f"({wider} {each})", "Word") for each in names}
    values["_result"] = (result, "Bool") if kind == "Bool" else (f"({wider} {result})", "Word")
    claims = [Question({}, definitions, INTEGER).term(each, values)[0] for each in re.findall(r"ensures ([^;]*);", contract)]
    return "".join([*(f"(declare-const {each} (_ BitVec {MODULO}))\n" for each in names),
                    f"(assert (not (and {' '.join(claims)})))\n(check-sat)\n"])


def proved(question):
    return subprocess.run(["z3", "-in", "-T:60"], input=question, stdout=subprocess.PIPE, text=True).stdout.strip() == "unsat"
