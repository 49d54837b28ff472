"""What a power cut may leave of the changes that the shim recorded."""
import random
from bisect import bisect_right
from dataclasses import dataclass, field

from league import State

NOTHING = object()


@dataclass
class History:
    """The versions of a name or a content, oldest first, and which of them is on the disk for certain."""
    times: list[int]
    versions: list
    synced: int = 0

    def add(self, time: int, version: object) -> None:
        self.times.append(time)
        self.versions.append(version)

    def sync(self) -> None:
        self.synced = len(self.versions) - 1

    def at(self, time: int) -> int:
        """The version that a disk holds to which changes up to `time` have come."""
        return max(self.synced, bisect_right(self.times, time) - 1)


@dataclass
class Disk:
    """The disk below the league folder, replayed from a record of changes. Contents are histories of bytes, names are
    histories of what they name: a content, None for a folder, or NOTHING."""
    names: dict[str, History]
    handles: dict[str, History] = field(default_factory=dict)
    contents: list[History] = field(default_factory=list)
    renamed: dict[str, str] = field(default_factory=dict)  # folders, to their new names
    time: int = 0

    @staticmethod
    def holding(base: State) -> "Disk":
        disk = Disk({})
        for path, content in base.items():
            file = None if content is None else disk.new_content(content)
            disk.names[path] = History([0], [file])
        return disk

    def new_content(self, content: bytes) -> History:
        file = History([0], [content])
        self.contents.append(file)
        return file

    def change(self, line: str) -> None:
        self.time += 1
        kind, *items = line.split("\t")
        getattr(self, kind)(*items)

    def name(self, path: str, what: object) -> None:
        self.names.setdefault(path, History([0], [NOTHING])).add(self.time, what)

    def make(self, path: str) -> None:
        self.name(path, self.new_content(b""))

    def folder(self, path: str) -> None:
        self.name(path, None)

    def remove(self, path: str) -> None:
        self.name(path, NOTHING)

    def rename(self, source: str, target: str) -> None:
        """A folder takes along what is in it, and is never found under both names or none."""
        what = self.names[source].versions[-1]
        if what is None:
            self.renamed[source] = target
            for path in [path for path in self.names if path.startswith(source + "/")]:
                self.names[target + path[len(source):]] = History([0], [self.names[path].versions[-1]])
        self.name(target, what)
        self.name(source, NOTHING)

    def open(self, handle: str, path: str) -> None:
        self.handles[handle] = self.names[path].versions[-1] if path in self.names else None

    def write(self, handle: str, offset: str, digits: str) -> None:
        file, begin, added = self.handles[handle], int(offset), bytes.fromhex(digits)
        old = file.versions[-1].ljust(begin, b"\0")
        file.add(self.time, old[:begin] + added + old[begin + len(added):])

    def cut(self, handle: str, length: str) -> None:
        file = self.handles[handle]
        file.add(self.time, file.versions[-1][:int(length)].ljust(int(length), b"\0"))

    def sync(self, path: str, handle: str) -> None:
        file = self.handles.get(handle)
        if file is not None:
            return file.sync()
        for name, history in self.names.items():
            if parent(name) == path:
                history.sync()

    def syncall(self) -> None:
        for history in [*self.names.values(), *self.contents]:
            history.sync()

    def after_cut(self, chance: random.Random) -> State:
        """One of the states in which the league may be found when the power goes now."""
        name_time = chance.choice(NAMES)(self.time, chance)
        tear = chance.random() < 0.7
        content_time = chance.choice([lambda: 0, lambda: self.time, lambda: chance.randint(0, self.time)])
        state: State = {}
        for path, history in sorted(self.names.items()):
            what = history.versions[history.at(name_time(self.renamed.get(path, path)))]
            if what is NOTHING or (parent(path) != "." and state.get(parent(path), b"") is not None):
                continue
            state[path] = None if what is None else torn(what, what.at(content_time()), tear, chance)
        return state


def parent(path: str) -> str:
    return path.rpartition("/")[0] or "."


def torn(file: History, version: int, tear: bool, chance: random.Random) -> bytes:
    """A version of a content; the one after it may have come in part, or as zeros."""
    whole = file.versions[version]
    if not tear or version + 1 == len(file.versions):
        return whole
    after = file.versions[version + 1]
    at = chance.randint(0, len(after))
    if not after.startswith(whole):
        return after[:at]
    at = max(at, len(whole))
    return chance.choice([after[:at], after[:at].ljust(len(after), b"\0"), whole.ljust(len(after), b"\0")])


def once_for_each(of, time: int, chance: random.Random):
    """A time of its own for each folder, or for each name."""
    times: dict[str, int] = {}
    return lambda path: times.setdefault(of(path), chance.randint(0, time))


def same_for_all(time: int):
    return lambda path: time


NAMES = [
    lambda time, chance: same_for_all(0),
    lambda time, chance: same_for_all(time),
    lambda time, chance: same_for_all(chance.randint(0, time)),
    lambda time, chance: once_for_each(parent, time, chance),
    lambda time, chance: once_for_each(str, time, chance),
]
