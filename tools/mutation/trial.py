"""Runs the tests that reach a mutant, those of its own folder first, until one fails."""
import os
import resource
import shutil
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

from mutation.finder import Mutant


@dataclass
class Test:
    program: Path
    name: str
    seconds: float
    reached: frozenset[int]


def run(program: Path, tests: list[str], folder: Path, seconds: float, **environment: str) -> bool:
    """Whether the tests pass within that much time of the processor."""
    def limit():
        whole = int(seconds) + 1
        resource.setrlimit(resource.RLIMIT_CPU, (whole, whole))
        resource.setrlimit(resource.RLIMIT_AS, (2 << 30, 2 << 30))
        resource.setrlimit(resource.RLIMIT_FSIZE, (256 << 20, 256 << 20))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    place = tempfile.mkdtemp(dir=folder)
    try:
        process = subprocess.Popen(
            [program, "--gtest_brief=1", "--gtest_fail_fast", "--gtest_filter=" + ":".join(tests)], cwd=place,
            env={**os.environ, "TMPDIR": place, **environment}, preexec_fn=limit, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
        try:
            return process.wait(60 + 10 * seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            end_group(process)
    finally:
        shutil.rmtree(place, ignore_errors=True)


def end_group(process: subprocess.Popen) -> None:
    """Ends the process that was started, and what it has started itself."""
    try:
        os.killpg(process.pid, 9)
    except ProcessLookupError:
        pass
    process.wait()


def test_names(program: Path) -> list[str]:
    names, suite = [], ""
    for line in subprocess.check_output([program, "--gtest_list_tests"], text=True).splitlines():
        name = line.split("#")[0].rstrip()
        if name.startswith("  "):
            names.append(suite + name.strip())
        elif name.endswith("."):
            suite = name
    return names


def try_alone(program: Path, name: str, count: int, folder: Path) -> Test | None:
    """Runs a test with no mutant on, and notes which it reaches; none for one that fails here all the same."""
    with tempfile.NamedTemporaryFile(dir=folder) as notes:
        notes.write(bytes(count))
        notes.flush()
        began = time.monotonic()
        if not run(program, [name], folder, 120, MUTANTS_REACHED=notes.name):
            print(f"mutate: {program.name} {name} fails without a mutant", file=sys.stderr)
            return None
        seconds = time.monotonic() - began
        notes.seek(0)
        reached = frozenset(number for number, byte in enumerate(notes.read()) if byte)
    return Test(program, name, seconds, reached)


def verdict(number: int, mutant: Mutant, tests: list[Test], folder: Path) -> str:
    """"unreached", "lived", or the name of the program that noticed the mutant."""
    programs: dict[Path, list[Test]] = {}
    for test in tests:
        if number in test.reached:
            programs.setdefault(test.program, []).append(test)
    own = Path(mutant.file).parent.name + "_tests"
    order = sorted(programs, key=lambda program: (program.name != own, sum(t.seconds for t in programs[program])))
    for program in order:
        names = [test.name for test in programs[program]]
        seconds = 5 + 5 * sum(test.seconds for test in programs[program])
        if not run(program, names, folder, seconds, MUTANT=str(number)):
            return program.name
    return "lived" if order else "unreached"
