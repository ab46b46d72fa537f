#!/usr/bin/env python3
"""Measures the signal template beside its peers and prints the tables.

Usage: report.py BUILD-DIRECTORY [--cpu N] [--repetitions N] [--filter REGEX]

BUILD-DIRECTORY holds bench_signals, signals_memory and signals_instructions. Everything runs pinned
to one processor. The repetitions of all rows are interleaved and their medians compared, so that a
change of the machine's speed hits all peers alike. Instructions are counted by valgrind, where it is
installed; they do not depend on the machine's load.
"""

import argparse
import json
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile

FLOOR = "floor"
PEERS = ["slimsig", "same records", "boost", "boost, no mutex", "sigc++", "Qt"]

# What slimsig is meant to keep, as a ratio to the floor.
LIMITS = {
    "emit to 1": 1.3, "emit to 8": 1.15, "emit to 64": 1.1, "emit to 1024": 1.1,
    "emit nested": 1.1, "emit QString to 8": 1.05, "emit 1000 signals": 1.3, "emit 4000 signals": 1.3,
    "emit 1000 signals of 16 kinds": 1.3, "emit 4000 signals of 16 kinds": 1.3,
    "connect first": 2, "connect 64": 2, "disconnect 64": 4, "destroy 64": 1,
}
IDLE_NANOSECONDS = 1.5
ROWS = ["emit to 0", "emit to 1", "emit to 8", "emit to 64", "emit to 1024", "emit nested",
        "emit QString to 8", "emit std::string to 8", "emit 1000 signals", "emit 4000 signals",
        "emit 1000 signals of 16 kinds", "emit 4000 signals of 16 kinds",
        "connect first", "connect 64", "disconnect 64", "destroy 64", "construct and destroy"]
INSTRUCTIONS = {0: 12, 8: 150}


def measure(program, repetitions, row_filter):
    """Returns {row: {peer: nanoseconds}}."""
    command = [program, "--benchmark_format=json", f"--benchmark_repetitions={repetitions}",
               "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.02",
               f"--benchmark_filter={row_filter}"]
    print("measuring, some minutes ...", file=sys.stderr)
    result = subprocess.run(command, stdout=subprocess.PIPE, check=True)
    samples = {}
    for run in json.loads(result.stdout)["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        manual = run["run_name"].endswith("/manual_time")
        name = run["run_name"].replace("/manual_time", "")
        nanoseconds = run["real_time" if manual else "cpu_time"] / run.get("operations", 1)
        samples.setdefault(name, []).append(nanoseconds)
    rows = {}
    for name, values in samples.items():
        row, peer = name.split("/")
        rows.setdefault(row, {})[peer] = statistics.median(values)
    return rows


def print_ratios(rows):
    print("| | floor, ns |", " | ".join(PEERS), "| slimsig at most | |")
    print("|---|" + "---:|" * (len(PEERS) + 2) + "---|")
    for row in sorted(rows, key=ROWS.index):
        medians = rows[row]
        floor = medians[FLOOR]
        ratios = {peer: medians[peer] / floor for peer in PEERS if peer in medians}
        if row == "emit to 0":
            limit, kept = f"{IDLE_NANOSECONDS} ns", medians["slimsig"] <= IDLE_NANOSECONDS
        else:
            limit = LIMITS.get(row)
            kept = limit is None or ratios["slimsig"] <= limit
        cells = [f"{ratios[peer]:.2f}" if peer in ratios else "" for peer in PEERS]
        print(f"| {row} | {floor:.1f} |", " | ".join(cells),
              f"| {limit or ''} | {'' if kept else 'over'} |")


def print_memory(program):
    output = subprocess.run([program], stdout=subprocess.PIPE, check=True, text=True).stdout
    table = {}
    for line in output.splitlines():
        peer, what, size, count = line.split("|")
        table.setdefault(what, {})[peer] = f"{size} / {count}"
    print("\n| bytes / allocations |", " | ".join([FLOOR] + PEERS), "|")
    print("|---|" + "---:|" * (len(PEERS) + 1))
    for what, cells in table.items():
        print(f"| {what} |", " | ".join(cells[peer] for peer in [FLOOR] + PEERS), "|")


def count_instructions(program, slot_count):
    """Returns the instructions of one emission to slots that do nothing."""
    with tempfile.TemporaryDirectory() as directory:
        result = subprocess.run(
            ["valgrind", "--tool=callgrind", f"--callgrind-out-file={directory}/out",
             "--toggle-collect=emitOnce*", program, str(slot_count)],
            stderr=subprocess.PIPE, check=True, text=True)
    return int(re.search(r"Collected : (\d+)", result.stderr).group(1)) / 1000


def print_instructions(program):
    if not shutil.which("valgrind"):
        print("\nvalgrind is not installed: no instructions counted", file=sys.stderr)
        return
    print("\n| slots | instructions of an emission | at most | |\n|---:|---:|---:|---|")
    for slot_count in (0, 1, 8, 64):
        counted = count_instructions(program, slot_count)
        limit = INSTRUCTIONS.get(slot_count)
        verdict = "over" if limit and counted > limit else ""
        print(f"| {slot_count} | {counted:.0f} | {limit or ''} | {verdict} |")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("directory", help="where the built programs are")
    parser.add_argument("--cpu", type=int, default=max(os.sched_getaffinity(0)),
                        help="the processor to run on (default: the last)")
    parser.add_argument("--repetitions", type=int, default=9)
    parser.add_argument("--filter", default=".", help="rows to measure, a regular expression")
    arguments = parser.parse_args()

    programs = {name: os.path.join(arguments.directory, name)
                for name in ("bench_signals", "signals_memory", "signals_instructions")}
    for program in programs.values():
        if not os.access(program, os.X_OK):
            parser.error(f"{program} is not there: build the target signals_report")
    os.sched_setaffinity(0, {arguments.cpu})
    print_ratios(measure(programs["bench_signals"], arguments.repetitions, arguments.filter))
    print_memory(programs["signals_memory"])
    print_instructions(programs["signals_instructions"])


if __name__ == "__main__":
    main()
