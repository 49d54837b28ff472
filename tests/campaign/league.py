"""A league folder that trials damage and put back, and the program run on it."""
import json
import os
import shutil
import subprocess
from pathlib import Path

JOURNAL = "Unfinished Changes.journal"
LOCK = "League in use.lock"
NUMBER = "Overall Game Number.txt"
SITE = "IcelineWebPages"
TEMPORARY = ".new~"
LOG, INDEX, COPIES = "History/Log.jsonl", "History/Index.txt", "History/Backups"
IN_EVERY_HISTORY = {"what", "game", "part", "saveState", "sheet", "coach", "to", "length", "team", "name"}

State = dict[str, bytes | None]  # by path: a file's content, None for a folder


def operations_of(log: bytes) -> bytes:
    """What the history holds that does not depend on how an operation came about: not which lines are the first of a run,
    and not the games that an error has ended."""
    lines = [json.loads(line) for line in log.splitlines()]
    return "\n".join(json.dumps({key: value for key, value in line.items() if key in IN_EVERY_HISTORY})
                     for line in lines if line["what"] != "import refused").encode()


def tidied(state: State) -> State:
    """The league without the lock and what a stopped run left beside files."""
    return {path: content for path, content in state.items() if path != LOCK and not path.endswith(TEMPORARY)}


def is_copy(path: str, content: bytes | None) -> bool:
    """Whether it is a whole copy of the league, which is there or not whatever becomes of the operation after it."""
    if path.startswith(COPIES + "/") and content is not None:
        try:
            json.loads(content)
        except ValueError:
            return False
    return path.startswith(COPIES)


def settled(state: State, pages: bool = True) -> State:
    """What the league is, to be compared; pages on demand. Whether its history is true, `iceline audit` tells."""
    kept = {path: content for path, content in tidied(state).items()
            if path != INDEX and (pages or not path.startswith(SITE)) and not is_copy(path, content)}
    if LOG in kept:
        kept[LOG] = operations_of(kept[LOG])
    return kept


def differences(found: State, wanted: State) -> list[str]:
    return sorted(path for path in found.keys() | wanted.keys()
                  if found.get(path, "missing") != wanted.get(path, "missing"))


class League:
    """The folder. What has not been touched since it was read last is not read again."""

    def __init__(self, folder: Path):
        self.folder = folder
        folder.mkdir()
        self.known: dict[str, tuple[tuple, bytes]] = {}

    def read(self) -> State:
        state: State = {}
        self.read_folder(str(self.folder), "", state)
        return state

    def read_folder(self, place: str, prefix: str, state: State) -> None:
        for entry in os.scandir(place):
            path = prefix + entry.name
            if entry.is_dir():
                state[path] = None
                self.read_folder(entry.path, path + "/", state)
                continue
            status = entry.stat()
            mark = (status.st_ino, status.st_size, status.st_mtime_ns, status.st_ctime_ns)
            if self.known.get(path, (None,))[0] != mark:
                with open(entry.path, "rb") as file:
                    self.known[path] = (mark, file.read())
            state[path] = self.known[path][1]

    def put(self, state: State) -> None:
        """Makes the folder hold exactly this."""
        found = self.read()
        for path in sorted(found.keys() - state.keys(), reverse=True):
            (os.rmdir if found[path] is None else os.remove)(self.folder / path)
        for path in sorted(state):
            content = state[path]
            if content is None:
                os.makedirs(self.folder / path, exist_ok=True)
            elif found.get(path) != content:
                if path in found:
                    os.remove(self.folder / path)  # a new file, so that the old one's mark is not taken for its
                with open(self.folder / path, "wb") as file:
                    file.write(content)


class Program:
    """The companion program, with the shim between it and the system: the clock stands still, and what a trial asks for."""

    def __init__(self, binaries: Path, league: League):
        self.league = league
        self.command = [str(binaries / "iceline"), "--league", str(league.folder)]
        self.shim = {"LD_PRELOAD": str(binaries / "libiceline_shim.so"), "SHIM_ROOT": str(league.folder)}

    def run(self, words: list[str], **shim: object) -> subprocess.CompletedProcess:
        environment = {"PATH": os.environ["PATH"], "TZ": "UTC"} | self.shim
        environment |= {f"SHIM_{name.upper()}": str(value) for name, value in shim.items()}
        return subprocess.run(self.command + words, env=environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, errors="replace", timeout=120)

    def start(self, **shim: object) -> subprocess.CompletedProcess:
        """The start after a trial: it finishes or drops what was left."""
        return self.run(["--yes", "season-length"], **shim)


def memory_folder() -> Path:
    """Where files cost least."""
    shared = Path("/dev/shm")
    place = shared if os.access(shared, os.W_OK) else Path(os.environ.get("TMPDIR", "/tmp"))
    folder = place / f"iceline-campaign-{os.getpid()}"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    return folder
