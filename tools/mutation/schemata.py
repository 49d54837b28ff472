"""Writes one source that holds every mutant of a file, each switched by its number."""
from mutation.finder import Mutant


class Schemata:
    """`text` is the source; `spans` tell where in it each number's own text lies, and each choice among several."""

    def __init__(self, source: bytes, numbered: dict[int, Mutant]):
        self.parts: list[bytes] = []
        self.length = 0
        self.spans: list[tuple[int, int, set[int]]] = []
        self.source = source
        self.by_extent: dict[tuple[int, int], list[int]] = {}
        self.mutants = numbered
        for number, mutant in numbered.items():
            self.by_extent.setdefault((mutant.start, mutant.end), []).append(number)
        # Outer before inner, as they come in the text.
        self.extents = sorted(self.by_extent, key=lambda extent: (extent[0], -extent[1]))
        self.next = 0
        self.copy(0, len(source))
        self.text = b"".join(self.parts)

    def write(self, text: bytes) -> None:
        self.parts.append(text)
        self.length += len(text)

    def copy(self, start: int, end: int) -> None:
        """The source from `start` to `end`, with the choices in it."""
        at = start
        while self.next < len(self.extents) and self.extents[self.next][1] <= end:
            extent = self.extents[self.next]
            self.next += 1
            self.write(self.source[at:extent[0]])
            self.choice(extent)
            at = extent[1]
        self.write(self.source[at:end])

    def choice(self, extent: tuple[int, int]) -> None:
        begin = self.length
        numbers = self.by_extent[extent]
        is_dropped = any(self.mutants[number].kind == "dropped call" for number in numbers)
        self.write(b"(")
        for number in numbers:
            self.write(b"mutation::on(%d) ? " % number)
            inner = self.length
            cast = b"void" if is_dropped else b""
            self.write(cast + b"(" + self.mutants[number].text.encode() + b")")
            self.spans.append((inner, self.length, {number}))
            self.write(b" : ")
        self.write(b"void(" if is_dropped else b"(")
        self.copy(*extent)
        self.write(b"))")
        self.spans.append((begin, self.length, set(numbers)))

    def at(self, line: int, column: int) -> set[int]:
        """The mutants that a place of the text belongs to, the narrowest."""
        lines = self.text.split(b"\n")
        offset = sum(len(text) + 1 for text in lines[:line - 1]) + column - 1
        around = [span for span in self.spans if span[0] <= offset < span[1]]
        return min(around, key=lambda span: span[1] - span[0])[2] if around else set()
