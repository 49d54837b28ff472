"""Finds what can be mutated in C++ files, by the syntax tree that libclang makes of them."""
import re
from dataclasses import dataclass, field
from pathlib import Path

from clang.cindex import Cursor, CursorKind, Index, TranslationUnit, TypeKind

COMPARISONS = {"<": ["<=", ">"], "<=": ["<", ">="], ">": [">=", "<"], ">=": [">", "<="], "==": ["!="], "!=": ["=="],
               "&&": ["||"], "||": ["&&"]}
ARITHMETIC = {"+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"], "+=": ["-="], "-=": ["+="], "*=": ["/="],
              "/=": ["*="], "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"], "++": ["--"], "--": ["++"]}
# Names that give way to others, each as a whole name.
NAMES = {
    "rounding": {"nearbyint": ["trunc", "round"], "floor": ["ceil"], "trunc": ["ceil"], "r1": ["r2"], "r2": ["r1", "r3"],
                 "r3": ["r2"], "wholeNumber": ["static_cast<int>"]},
    "order": {"HighestFirst": ["LowestFirst"], "LowestFirst": ["HighestFirst"], "greater": ["less"], "less": ["greater"],
              "min": ["max"], "max": ["min"], "front": ["back"], "back": ["front"], "otherSide": [""],
              "otherConference": [""]},
    "comparison": {"any_of": ["all_of"], "all_of": ["any_of"], "none_of": ["any_of"]},
}
SIDE = re.compile(r"(home|away)(?![a-z])|(Home|Away)(?![a-z])")
SIDES = {"home": "away", "away": "home", "Home": "Away", "Away": "Home"}
NUMBERS = {TypeKind.BOOL, TypeKind.ENUM, TypeKind.DEPENDENT, TypeKind.DOUBLE, TypeKind.FLOAT} | {
    TypeKind.from_id(number) for number in range(TypeKind.CHAR_U.value, TypeKind.INT128.value + 1)}
STATEMENTS = {CursorKind.IF_STMT, CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT, CursorKind.WHILE_STMT}


@dataclass(frozen=True, order=True)
class Mutant:
    """The text from `start` to `end` of a file, in bytes, and what it gives way to."""
    file: str
    start: int
    end: int
    text: str
    kind: str
    frozen: bool = field(default=False, compare=False)  # known to the compiler, so that no switch can reach it


class Finder:
    """Collects the mutants of files in src; `wanted` says of which."""

    def __init__(self, wanted: set[Path]):
        self.sources = {str(path): path.read_bytes() for path in wanted}
        self.found: set[Mutant] = set()

    def parse(self, path: Path, arguments: list[str]) -> None:
        unit = Index.create().parse(str(path), args=arguments, options=TranslationUnit.PARSE_INCOMPLETE)
        for cursor in unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name in self.sources:
                self.visit(cursor, None, False)

    def text(self, file: str, start: int, end: int) -> str:
        return self.sources[file][start:end].decode()

    def visit(self, cursor: Cursor, parent: Cursor | None, frozen: bool) -> None:
        extent = cursor.extent
        if not extent.start.file or extent.start.file.name not in self.sources:
            return
        file, start, end = extent.start.file.name, extent.start.offset, extent.end.offset
        if end <= start:  # "a == b" by way of "b == a"
            operands = [operand.extent for operand in cursor.get_arguments()]
            start = min((operand.start.offset for operand in operands), default=start)
            end = max((operand.end.offset for operand in operands), default=end)
        frozen = self.is_frozen(cursor, file, start, end, frozen)
        for text, kind in self.changes(cursor, parent, file, start, end):
            self.found.add(Mutant(file, start, end, text, kind, frozen))
        for number, child in enumerate(cursor.get_children()):
            is_label = cursor.kind == CursorKind.CASE_STMT and number == 0
            self.visit(child, cursor, frozen or is_label)

    def is_frozen(self, cursor, file, start, end, frozen) -> bool:
        if cursor.kind == CursorKind.LAMBDA_EXPR:
            return False
        if cursor.kind in (CursorKind.STATIC_ASSERT, CursorKind.ENUM_CONSTANT_DECL):
            return True
        if cursor.kind == CursorKind.VAR_DECL:
            return "constexpr" in self.text(file, start, max(start, cursor.location.offset))
        if cursor.kind in (CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.FUNCTION_TEMPLATE):
            return "consteval" in self.text(file, start, max(start, cursor.location.offset))
        if cursor.kind == CursorKind.INTEGER_LITERAL:
            before, after = self.text(file, start - 1, start), self.text(file, end, end + 1)
            return frozen or before == "<" or after == ">"
        return frozen

    def changes(self, cursor, parent, file, start, end):
        """What the text of a cursor may give way to, and the kind of each."""
        kind, text = cursor.kind, self.text(file, start, end)
        if kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR):
            yield from self.of_operator(file, start, end, list(cursor.get_children()),
                                        cursor.type.get_canonical().kind in NUMBERS)
        elif kind == CursorKind.UNARY_OPERATOR:
            yield from of_unary(text)
        elif kind == CursorKind.CALL_EXPR and cursor.spelling.startswith("operator"):
            yield from self.of_operator(file, start, end, list(cursor.get_arguments()), False)
        elif kind == CursorKind.INTEGER_LITERAL and re.fullmatch(r"[0-9a-fA-FxXuUlL']+", text):
            yield f"{text} + 1", "constant"
        elif kind == CursorKind.FLOATING_LITERAL:
            yield f"{text} + 0.01", "constant"
        elif kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            yield "false" if text == "true" else "true", "constant"
        elif kind == CursorKind.CXX_STATIC_CAST_EXPR and text.startswith("static_cast<int>("):
            operand = list(cursor.get_children())[-1]
            if operand.type.get_canonical().kind == TypeKind.DOUBLE:
                yield f"static_cast<int>({text.removeprefix('static_cast<int>')} + 0.5)", "rounding"
        elif kind in (CursorKind.DECL_REF_EXPR, CursorKind.MEMBER_REF_EXPR) and not is_part(cursor, parent):
            yield from of_name(text, cursor.spelling, 0)
        if kind in (CursorKind.CALL_EXPR, CursorKind.UNARY_OPERATOR):
            yield from self.of_callee(cursor, file, start, text)
        if is_call_statement(cursor, parent):
            yield "void()", "dropped call"

    def of_operator(self, file, start, end, operands, is_number):
        if len(operands) != 2:
            return
        one, other = sorted(operands, key=lambda operand: operand.extent.start.offset)
        first, last = one.extent.end.offset, other.extent.start.offset
        sign = self.text(file, first, last).strip() if first < last else ""
        for table, kind in ((COMPARISONS, "comparison"), (ARITHMETIC if is_number else {}, "arithmetic")):
            for changed in table.get(sign, []):
                yield f"{self.text(file, start, first)} {changed} {self.text(file, last, end)}", kind

    def of_callee(self, cursor, file, start, text):
        """A call, or the address of a member, whose name is another's."""
        callee = next(iter(cursor.get_children()), None)
        while callee is not None and callee.kind == CursorKind.UNEXPOSED_EXPR:
            callee = next(iter(callee.get_children()), None)
        if callee is None or callee.kind not in (CursorKind.DECL_REF_EXPR, CursorKind.MEMBER_REF_EXPR):
            return
        if cursor.kind == CursorKind.UNARY_OPERATOR and not text.startswith("&"):
            return
        if callee.extent.start.offset >= start and text.find(callee.spelling) >= 0:
            yield from of_name(text, callee.spelling, callee.extent.end.offset - start)


def of_unary(text):
    if text.startswith("!"):
        yield text[1:], "comparison"
    for sign in ("++", "--"):
        if text.startswith(sign):
            yield ARITHMETIC[sign][0] + text[2:], "arithmetic"
        elif text.endswith(sign):
            yield text[:-2] + ARITHMETIC[sign][0], "arithmetic"
    if re.match(r"-\w", text):
        yield text[1:], "arithmetic"


def of_name(text, name, before):
    """`text` with the last `name` that is in it, or in its first `before` bytes, changed."""
    at = text.rfind(name, 0, before or len(text))
    if not name or at < 0:
        return
    for kind, names in NAMES.items():
        for changed in names.get(name, []):
            prefix = text[:at].removesuffix("std::") if "<" in changed else text[:at]
            yield prefix + changed + text[at + len(name):], kind
    swapped = SIDE.sub(lambda match: SIDES[match.group()], name)
    if swapped != name:
        yield text[:at] + swapped + text[at + len(name):], "side"


def is_part(cursor, parent) -> bool:
    """Whether a name is that of a call, or taken the address of: the whole is changed then."""
    if parent is None or parent.kind not in (CursorKind.CALL_EXPR, CursorKind.UNARY_OPERATOR,
                                             CursorKind.UNEXPOSED_EXPR):
        return False
    first = next(iter(parent.get_children()), None)
    is_function = cursor.referenced is not None and cursor.referenced.kind in (
        CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.FUNCTION_TEMPLATE)
    is_address = parent.kind == CursorKind.UNARY_OPERATOR and parent.extent.end.offset == cursor.extent.end.offset
    return first == cursor and (is_function or is_address or parent.kind == CursorKind.CALL_EXPR)


def is_call_statement(cursor, parent) -> bool:
    if parent is None or cursor.kind not in (CursorKind.CALL_EXPR, CursorKind.UNEXPOSED_EXPR):
        return False
    inner = cursor
    while inner.kind == CursorKind.UNEXPOSED_EXPR:
        children = list(inner.get_children())
        if len(children) != 1:
            return False
        inner = children[0]
    if inner.kind != CursorKind.CALL_EXPR:
        return False
    if parent.kind in STATEMENTS:  # its body, not its condition
        return cursor.extent.end.offset == parent.extent.end.offset or follows_bracket(parent, cursor)
    return parent.kind == CursorKind.COMPOUND_STMT


def follows_bracket(parent, cursor) -> bool:
    children = [child for child in parent.get_children()]
    return cursor in children[1:] and parent.kind == CursorKind.IF_STMT
