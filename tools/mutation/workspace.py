"""The core with all its mutants, built once as a shared library, and the test programs linked with it."""
import json
import re
import shlex
import subprocess
from concurrent.futures import Executor
from pathlib import Path

from mutation.finder import Finder, Mutant
from mutation.schemata import Schemata

ROOT = Path(__file__).resolve().parents[2]
SOURCES = ROOT / "src"
BUILD = ROOT / "build/core-only"
SWITCH = Path(__file__).with_name("mutants.h")
LIBRARIES = ("libiceline_core.a", "src/preview/libiceline_preview.a")
PLACE = re.compile(r"^(?:In file included from |\s+from )?(/[^\s:]+):(\d+):(\d+)[:,]?(?: +(error|fatal error))?", re.M)


def write_if_changed(path: Path, content: bytes) -> None:
    if not path.exists() or path.read_bytes() != content:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


class Workspace:
    """`numbered` holds the mutants that were built, `left_out` those that could not be switched."""

    def __init__(self, folder: Path, files: list[Path], pool: Executor):
        self.folder = folder
        self.sources = folder / "src"
        if not (BUILD / "build.ninja").exists():
            subprocess.run(["cmake", "--preset", "core-only"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", "--preset", "core-only"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
        entries = json.loads((BUILD / "compile_commands.json").read_text())
        self.commands = {Path(entry["file"]): shlex.split(entry["command"]) for entry in entries
                         if any(f"/{name}.dir/" in entry["command"] for name in ("iceline_core", "iceline_preview"))}
        found = self.find(files)
        self.left_out = {mutant for mutant in found if mutant.frozen}
        self.numbered = dict(enumerate(mutant for mutant in found if not mutant.frozen))
        self.compile_all(pool)
        self.programs = list(pool.map(self.link, sorted((BUILD / "bin").glob("*_tests"))))

    def find(self, files: list[Path]) -> list[Mutant]:
        finder = Finder(set(files))
        includers = {folder.name for folder in SOURCES.iterdir()} if any(f.suffix == ".h" for f in files) else set()
        for source, command in self.commands.items():
            if source in files or source.parent.name in includers:
                finder.parse(source, [word for word in command if word.startswith(("-I", "-D", "-std"))])
        return sorted(finder.found)

    def compile_all(self, pool: Executor) -> None:
        """Compiles until all does; mutants that do not compile are left out."""
        left = list(self.commands)
        while left:
            schemata = self.write_sources()
            failed = [(source, errors) for source, errors in zip(left, pool.map(self.compile, left)) if errors]
            broken = set().union(*(self.broken_mutants(schemata, errors) for _, errors in failed))
            if failed and not broken:
                raise SystemExit(f"mutate: the mutated core does not compile\n{failed[0][1][:5000]}")
            is_header = any(self.numbered[number].file.endswith(".h") for number in broken)
            self.left_out |= {self.numbered.pop(number) for number in broken}
            left = list(self.commands) if is_header else [source for source, _ in failed]
        objects = [self.object(source) for source in self.commands]
        subprocess.run(["c++", "-shared", "-Wl,-Bsymbolic", "-fuse-ld=lld", "-o", self.folder / "libmutants.so", *objects],
                       check=True)

    def object(self, source: Path) -> Path:
        return self.folder / "objects" / source.relative_to(SOURCES).with_suffix(".o")

    def compile(self, source: Path) -> str:
        """The compiler's errors, nothing when there are none."""
        command = [word for word in self.commands[source] if not word.startswith("-W") and word != "-Wpedantic"]
        command = [word.replace(str(SOURCES), str(self.sources)) for word in command[:command.index("-o")]]
        target = self.object(source)
        target.parent.mkdir(parents=True, exist_ok=True)
        run = subprocess.run(["ccache", *command, "-w", "-fPIC", "-D_GLIBCXX_ASSERTIONS", "-fmax-errors=0", "-include",
                              SWITCH, "-o", target, "-c", self.sources / source.relative_to(SOURCES)],
                             cwd=BUILD, capture_output=True, text=True)
        return run.stderr if run.returncode else ""

    def link(self, program: Path) -> Path:
        """Links a test program as the build does, but with the mutants."""
        commands = subprocess.check_output(["ninja", "-C", BUILD, "-t", "commands", f"bin/{program.name}"], text=True)
        link = commands.splitlines()[-1].split(" && ")[1]
        linked = BUILD / "mutants" / program.name  # beside bin, where programs find the template of the site
        linked.parent.mkdir(exist_ok=True)
        words = [word for word in shlex.split(link) if word not in LIBRARIES]
        words[words.index("-o") + 1] = str(linked)
        subprocess.run([*words, "-fuse-ld=lld", self.folder / "libmutants.so", f"-Wl,-rpath,{self.folder}"], cwd=BUILD,
                       check=True)
        return linked

    def write_sources(self) -> dict[str, Schemata]:
        by_file: dict[str, dict[int, Mutant]] = {}
        for number, mutant in self.numbered.items():
            by_file.setdefault(mutant.file, {})[number] = mutant
        schemata = {}
        for source in SOURCES.rglob("*.*"):
            target = self.sources / source.relative_to(SOURCES)
            schemata[str(target)] = Schemata(source.read_bytes(), by_file.get(str(source), {}))
            write_if_changed(target, schemata[str(target)].text)
        return schemata

    def broken_mutants(self, schemata: dict[str, Schemata], errors: str) -> set[int]:
        """Those that the errors point at, or else the lines that come with an error."""
        broken: set[int] = set()
        before: set[int] = set()
        is_open = False  # an error that no mutant has been found for
        for file, line, column, error in PLACE.findall(errors):
            numbers = schemata[file].at(int(line), int(column)) if file in schemata else set()
            if error:
                broken |= numbers or before
                is_open = not (numbers or before)
                before = set()
            elif is_open and numbers:
                broken |= numbers
                is_open = False
            else:
                before = numbers or before
        return broken & self.numbered.keys()
