"""What the campaign does to leagues, and in which states it may leave them."""
import shutil
import time
from dataclasses import dataclass, field
from pathlib import Path

from league import JOURNAL, NUMBER, SITE, League, Program, State, settled, tidied


@dataclass
class Operation:
    name: str
    words: list[str]
    base: State                     # the league before it
    after: list[State] = field(default_factory=list)   # settled, after 0, 1, ... of its steps and the next start
    success: str = ""               # what it prints only when it has worked
    pages: bool = True              # whether pages belong to what is whole or not at all
    every: int = 1                  # tried in every n-th round alone, as it takes long
    microseconds: int = 0           # how long it takes
    calls: dict[str, int] = field(default_factory=dict)  # that suit each kind of fault
    log: list[str] = field(default_factory=list)         # its changes and syncs
    changes: int = 0

    def steps_of(self, found: State) -> set[int]:
        """How many steps may be done in a league; none when it is between two."""
        found = settled(found, self.pages)
        rest = without_number(found)
        return {step for step, state in enumerate(self.after)
                if found == state or rest == without_number(state) and self.number_fits(found, step)}

    def has_worked(self, output: str) -> bool:
        return bool(self.success) and self.success in output

    def number_fits(self, found: State, step: int) -> bool:
        """Each game that is tried raises the number, also one that is refused or broken off."""
        low, high = (int(self.after[at][NUMBER]) for at in (step, -1))
        return low <= int(found[NUMBER]) <= max(high, low + 1)


def without_number(state: State) -> State:
    return {path: content for path, content in state.items() if path != NUMBER}


class Workshop:
    """Makes the leagues and operations."""

    def __init__(self, program: Program, games: Path):
        self.program = program
        self.league: League = program.league
        self.games = games
        self.must(["sample-games", str(games), "--games", "4"])
        (games / "run").mkdir()
        for number in range(1, 4):
            shutil.copy(games / f"game-000{number}.gs0", games / "run")

    def must(self, words: list[str], **shim: object):
        done = self.program.run(["--yes", *words], **shim)
        if done.returncode != 0:
            raise RuntimeError(f"{words} failed: {done.stdout}{done.stderr}")
        return done

    def league_after(self, base: State, *commands: list[str]) -> State:
        self.league.put(base)
        for words in commands:
            self.must(words)
        return tidied(self.league.read())

    def operation(self, name: str, base: State, words: list[str], steps: list[list[list[str]]] | None = None,
                  **more) -> Operation:
        """`steps` are the commands that leave the league as after 0, 1, ... steps of the operation."""
        made = Operation(name, words, base, **more)
        for commands in steps or [[], [words]]:
            made.after.append(settled(self.league_after(base, *commands, ["season-length"]), made.pages))
        self.measure(made)
        return made

    def measure(self, made: Operation) -> None:
        counts, log = (self.league.folder.parent / name for name in ("counts", "log"))
        self.league.put(made.base)
        begin = time.monotonic()
        self.program.run(made.words, kill_after=10**8)
        made.microseconds = int((time.monotonic() - begin) * 1e6)
        self.league.put(made.base)
        self.program.run(made.words, counts=counts, log=log)
        made.calls = {kind: int(count) for kind, count in
                      (line.split() for line in counts.read_text().splitlines())}
        made.log = log.read_text().splitlines()
        made.changes = sum(not line.startswith("open") for line in made.log)

    def unfinished(self, base: State, words: list[str]) -> State:
        """A league in which a whole journal was left, some of its changes made."""
        probe = Operation("", words, base)
        self.measure(probe)
        changes = [line for line in probe.log if not line.startswith("open")]
        noted = max(number for number, line in enumerate(changes) if line.startswith("sync\t" + JOURNAL))
        self.league.put(base)
        self.program.run(words, kill_at=noted + 10)
        found = self.league.read()
        if JOURNAL not in found:
            raise RuntimeError(f"{words} left no journal")
        return tidied(found)

    def all_operations(self) -> list[Operation]:
        games = [f"{self.games}/game-000{number}.gs0" for number in range(1, 5)]
        coaches = ["--home-coach", "Ann", "--away-coach", "Bo"]
        new = self.league_after({}, ["season-length"])
        base = self.league_after(new, ["init"], ["coach", "add", "Ann"], ["coach", "add", "Bo"],
                                 ["import", games[3], *coaches])
        light = {path: content for path, content in base.items()  # without what nothing asks for
                 if not path.startswith(SITE) or content is None or path.count("/") < 2 or "/BoxScores/" in path}
        game = ["import", games[0], *coaches]
        left = self.unfinished(light, game)
        two = self.league_after(light, game)
        first, second = "3", "4"  # the games' numbers in the history, after the two coaches
        clear = ["clear", "Boston Bruins"]
        run = [[["import", one, *coaches] for one in games[:count]] for count in range(4)]
        return [
            self.operation("import", light, game, success="has been imported"),
            self.operation("import-folder", light, ["import-folder", f"{self.games}/run", *coaches], run, pages=False),
            self.operation("clear team", light, clear, success="stats cleared"),
            self.operation("clear ALL", light, ["clear", "ALL"], success="have been cleared"),
            self.operation("coach add", light, ["coach", "add", "Cy"]),
            self.operation("coach rename", light, ["coach", "rename", "Ann", "Amy"]),
            self.operation("coach delete", light, ["coach", "delete", "Bo"]),
            self.operation("coach clear", light, ["coach", "clear", "Ann"], success="have been cleared"),
            self.operation("season-length", light, ["season-length", "30"], success="has been updated"),
            self.operation("go-to-playoffs", light, ["go-to-playoffs"], success="is now over"),
            self.operation("undo", two, ["undo", first], success="Undone"),
            self.operation("redo", self.league_after(two, ["undo", first]), ["redo"], success="Done again"),
            self.operation("correct", two, ["correct", second, "--home-coach", "Bo", "--away-coach", "none"],
                           success="Corrected"),
            self.operation("new-season", light, ["new-season", "First"], success="is kept as First", pages=False, every=10),
            self.operation("publish", light, ["publish"], pages=False, every=10),
            self.operation("init", {}, ["--yes", "init"], [[], [["init"]]]),
            self.operation("recover", left, ["recover"], [[], []]),
            self.operation("start on a journal", left, ["season-length"], [[], []]),
        ]
