#!/usr/bin/env python3
"""Kills the companion program, fails its system calls and cuts the power under it, and looks at every league that is left.

    campaign.py FOLDER [--long] [--write PAGE] [--seed N] [--kills N] [--faults N] [--cuts N]

FOLDER holds `iceline` and the shim. After each trial the program is started once more; then the league must be exactly
as before the operation or as after it (a run over a folder: as after a whole number of games), and what was said must
be true. Ends with a table of counts, and with status 1 when anything was found.
"""
import argparse
import random
import shutil
import sys
import time
from collections import Counter
from concurrent.futures import ProcessPoolExecutor
from dataclasses import replace
from pathlib import Path

from league import JOURNAL, LOG, League, Program, differences, memory_folder, settled
from operations import Operation, Workshop
from powercut import Disk

KINDS = ["kills", "kills in recovery", "faults", "power cuts"]
SHORT = {"kills": 240, "faults": 900, "cuts": 400}
LONG = {"kills": 5500, "faults": 21000, "cuts": 5500}
AUDITED = 1 / 10  # part of the leagues whose books are worked out anew
BEGIN, END = "<!-- campaign -->\n", "<!-- /campaign -->"
NOTED, UNSURE = "The change is noted in", "may still make it"


class Campaign:
    def __init__(self, program: Program, operations: list[Operation], seed: int):
        self.program = program
        self.league = program.league
        self.operations = operations
        self.chance = random.Random(seed)
        self.tried = {operation.name: Counter() for operation in operations}
        self.found: list[str] = []

    def finding(self, operation: Operation, trial: str, what: str) -> None:
        self.found.append(f"{operation.name}, {trial}: {what}")
        print("FOUND", self.found[-1], flush=True)

    def steps_after_start(self, operation: Operation, trial: str) -> set[int]:
        """Starts the program and gives the steps that the league may be at; none when that is a finding."""
        start = self.program.start()
        if start.returncode != 0 or start.stderr:
            self.finding(operation, trial, f"the next start fails: {start.returncode} {start.stderr}")
            return set()
        found = self.league.read()
        steps = operation.steps_of(found)
        if not steps:
            self.finding(operation, trial, f"the league is between two states: {self.nearest(operation)}")
        if LOG in found and self.chance.random() < AUDITED:
            audit = self.program.run(["audit"])
            if audit.returncode != 0:
                self.finding(operation, trial, f"the history tells of other books: {audit.stdout} {audit.stderr}")
        return steps

    def nearest(self, operation: Operation) -> list[str]:
        """In what the league differs from the state that is nearest to it."""
        found = settled(self.league.read(), operation.pages)
        return min((differences(found, state) for state in operation.after), key=len)[:6]

    def check_truth(self, operation: Operation, trial: str, done, steps: set[int]) -> None:
        """Whether what a run said is true of the league after the next start."""
        last = len(operation.after) - 1
        worked = done.returncode == 0 or operation.has_worked(done.stdout)
        if not steps or UNSURE in done.stderr:
            return
        if done.stdout.rstrip().endswith("Files imported"):
            said = int(done.stdout.split()[-3])
            allowed = {said, said + 1} if NOTED in done.stderr else {said}
        elif worked:
            allowed = {last}
        elif NOTED in done.stderr:
            allowed = set(range(1, last + 1))
        else:
            allowed = {0} if done.returncode > 0 else set(range(last + 1))
        if not steps & allowed:
            self.finding(operation, trial, f"done are {steps}, and it said: {done.returncode} {done.stdout}{done.stderr}")

    def kill(self, operation: Operation) -> None:
        """At a random moment, or in a random change; then the recovery, some times."""
        self.league.put(operation.base)
        if self.chance.random() < 0.5:
            when = {"kill_after": self.chance.randint(1, operation.microseconds)}
        else:
            when = {"kill_at": self.chance.randint(1, operation.changes)}
        trial = f"kill {when}"
        done = self.program.run(operation.words, **when)
        self.tried[operation.name]["kills"] += done.returncode == -9
        while (self.league.folder / JOURNAL).exists() and self.chance.random() < 0.8:
            at = self.chance.randint(1, operation.changes)
            recovery = self.program.start(kill_at=at)
            trial += f", then in recovery {at}"
            self.tried[operation.name]["kills in recovery"] += recovery.returncode == -9
        steps = self.steps_after_start(operation, trial)
        self.check_truth(operation, trial, done, steps)

    def fault(self, operation: Operation) -> None:
        self.league.put(operation.base)
        kind = self.chance.choice([kind for kind, calls in operation.calls.items() if calls > 0])
        fault = f"{kind} {self.chance.randint(1, operation.calls[kind])} {self.chance.choice(['once', 'on'])}"
        trial = f"fault {fault}"
        done = self.program.run(operation.words, fault=fault)
        self.tried[operation.name]["faults"] += 1
        if done.returncode < 0:
            self.finding(operation, trial, f"ended by signal {-done.returncode}: {done.stderr}")
        steps = self.steps_after_start(operation, trial)
        self.check_truth(operation, trial, done, steps)

    def cut(self, operation: Operation, log: list[str], kind: str = "power cuts") -> bool:
        """Whether the next start makes a whole league of what a power cut leaves."""
        disk = Disk.holding(operation.base)
        end = self.chance.randint(0, len(log))
        for line in log[:end]:
            disk.change(line)
        self.league.put(disk.after_cut(self.chance))
        self.tried[operation.name][kind] += 1
        start = self.program.start()
        steps = operation.steps_of(self.league.read())
        return start.returncode == 0 and bool(steps) and (end < len(log) or len(operation.after) - 1 in steps)

    def power_cut(self, operation: Operation) -> None:
        if not self.cut(operation, operation.log):
            self.finding(operation, "power cut", f"the league is not whole: {self.nearest(operation)}")

    def counter_test(self) -> None:
        """The replay must notice when syncs are lost: all of them, or any single one of an import's."""
        log = self.league.folder.parent / "log"
        operation = self.operations[0]
        for lost in range(sum(line.startswith("sync") for line in operation.log) + 1):
            self.league.put(operation.base)
            self.program.run(operation.words, no_sync=lost, log=log)
            test, record = with_backup_copied(operation, log.read_text().splitlines())
            what = f"without sync {lost}" if lost else "without any sync"
            for cuts in range(1, 2001):
                if not self.cut(test, record, what):
                    print(f"An import {what} is noticed by power cut {cuts}.", flush=True)
                    break
            else:
                self.finding(operation, what, "the replay of power cuts has not noticed it")

    def run(self, trial, kinds: list[str], wanted: int) -> None:
        """Tries one operation after the other, until the counts of these kinds come to `wanted`."""
        begin, rounds = time.monotonic(), 0
        while sum(counts[kind] for counts in self.tried.values() for kind in kinds) < wanted:
            rounds += 1
            for operation in self.operations:
                if rounds % operation.every == 0:
                    trial(operation)
        print(f"{kinds[0]}: {time.monotonic() - begin:.0f} s", flush=True)


def with_backup_copied(operation: Operation, log: list[str]) -> tuple[Operation, list[str]]:
    """The operation and its record with a step more: past the journal, a file that it has replaced is put back from a
    backup. Only so does it show whether the removal of the journal outlasts a power cut."""
    path = next(line.split("\t")[2] for line in log if line.startswith("rename"))
    backup = operation.base[path]
    copying = [f"open\tcopy\t{path}", "cut\tcopy\t0", f"write\tcopy\t0\t{backup.hex()}", f"sync\t{path}\tcopy"]
    copied = replace(operation, after=[*operation.after, operation.after[-1] | {path: backup}])
    return copied, log + copying


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("binaries", type=Path)
    parser.add_argument("--long", action="store_true")
    parser.add_argument("--jobs", type=int, default=2, help="how many trials at a time")
    parser.add_argument("--write", type=Path, metavar="PAGE", help="puts the table into this page")
    parser.add_argument("--seed", type=int, default=random.randrange(10**6))
    for kind in SHORT:
        parser.add_argument(f"--{kind}", type=int)
    given = parser.parse_args()
    for kind, count in (LONG if given.long else SHORT).items():
        if getattr(given, kind) is None:
            setattr(given, kind, count)
    return given


def run_share(given: argparse.Namespace, job: int) -> tuple[dict[str, Counter], list[str]]:
    """A job's share of the trials, on a league of its own. The first does the counter-test."""
    folder = memory_folder()
    try:
        program = Program(given.binaries.resolve(), League(folder / "league"))
        campaign = Campaign(program, Workshop(program, folder / "games").all_operations(), given.seed + job)
        if job == 0:
            campaign.counter_test()
        for trial, kinds, wanted in ((campaign.kill, KINDS[:2], given.kills), (campaign.fault, KINDS[2:3], given.faults),
                                     (campaign.power_cut, KINDS[3:], given.cuts)):
            campaign.run(trial, kinds, -(-wanted // given.jobs))
        return campaign.tried, campaign.found
    finally:
        shutil.rmtree(folder, ignore_errors=True)


def table(tried: dict[str, Counter]) -> str:
    rows = [[name, *(counts[kind] for kind in KINDS)] for name, counts in tried.items()]
    rows.append(["all", *(sum(column) for column in list(zip(*rows))[1:])])
    lines = [f"| {'operation':<20} | " + " | ".join(KINDS) + " |", "|---|" + "---:|" * len(KINDS)]
    lines += [f"| {name:<20} | " + " | ".join(f"{count:>{len(kind)}}" for kind, count in zip(KINDS, counts)) + " |"
              for name, *counts in rows]
    return "\n".join(lines)


def main() -> int:
    given = arguments()
    print(f"seed {given.seed}", flush=True)
    tried: dict[str, Counter] = {}
    found: list[str] = []
    with ProcessPoolExecutor(given.jobs) as pool:
        for counts, findings in pool.map(run_share, [given] * given.jobs, range(given.jobs)):
            for name, of_operation in counts.items():
                tried.setdefault(name, Counter()).update(of_operation)
            found += findings
    counts = f"{table(tried)}\n\n{len(found)} findings."
    print(f"\n{counts}")
    if given.write:
        before, _, rest = given.write.read_text().partition(BEGIN)
        given.write.write_text(f"{before}{BEGIN}\n{counts}\n\n{END}{rest.partition(END)[2]}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
