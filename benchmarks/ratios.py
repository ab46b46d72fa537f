#!/usr/bin/env python3
"""Runs a benchmark program and prints each row as a ratio to bare Qt.

Usage: ratios.py BENCH_PROGRAM [--runs N] [--wall] [--compact] [--plot FILE.svg]

Each run is a process of its own, so that a lucky or unlucky layout of memory shows as a range. A
row's ratio is taken within a run, and the median over the runs is printed.
"""

import argparse
import collections
import json
import statistics
import subprocess
import sys

CURVE = "text view setText/"


def run_program(program):
    command = [program, "--benchmark_format=json", "--benchmark_min_time=0.1"]
    result = subprocess.run(command, stdout=subprocess.PIPE, check=True)
    return json.loads(result.stdout)["benchmarks"]


def peers_of(row, clock):
    """The entries (name, peer, nanoseconds) that a benchmark stands for."""
    if "ratio" in row:  # measured in turns: the median over the pairs is what holds
        return [(row["name"], "qt", row["qt"]), (row["name"], "commonui", row["qt"] * row["ratio"])]
    name, _, peer = row["name"].replace("/real_time", "").rpartition("/")
    return [(name, peer, row[clock])]


def measure(program, runs, clock):
    """A list for each run: {name: {peer: time}}."""
    measured = []
    for number in range(runs):
        print(f"run {number + 1} of {runs}, may take a minute ...", file=sys.stderr)
        times = collections.defaultdict(dict)
        for row in run_program(program):
            if row.get("error_occurred"):
                sys.exit(f"{row['name']}: {row['error_message']}")
            for name, peer, time in peers_of(row, clock):
                times[name][peer] = time
        measured.append(times)
    return measured


class Row:
    """A peer of a row against bare Qt: medians over the runs, and the range of the ratio."""

    def __init__(self, name, peer, measured):
        times = [(run[name][peer], run[name]["qt"]) for run in measured]
        ratios = [time / qt for time, qt in times]
        self.name, self.peer = name, peer
        self.qt = statistics.median(qt for _, qt in times)
        self.ratio, self.low, self.high = statistics.median(ratios), min(ratios), max(ratios)
        self.extra = statistics.median(time - qt for time, qt in times)


def rows_of(measured):
    return [Row(name, peer, measured) for name, peers in measured[0].items() if "qt" in peers
            for peer in peers if peer != "qt"]


def print_rows(rows):
    print(f"{'row':48} {'peer':9} {'Qt, ns':>10} {'ratio':>7}  {'range':11} {'more, ns':>10}")
    for row in rows:
        print(f"{row.name:48} {row.peer:9} {row.qt:10.0f} {row.ratio:7.2f}  "
              f"{row.low:.2f}-{row.high:<6.2f} {row.extra:+10.0f}")


def print_compact(rows):
    """A Markdown table with a line for each control and group: NAME RATIO (MORE)."""
    lines = collections.defaultdict(list)
    for row in rows:
        control, group, name = row.name.split("/", 2)
        lines[group, control].append(f"{name} {row.ratio:.2f} ({row.extra:+.0f})")
    for group in dict.fromkeys(group for group, _ in lines):
        print(f"\n| {group} | ratio to Qt (ns more) |\n|---|---|")
        for (_, control), cells in filter(lambda line: line[0][0] == group, lines.items()):
            print(f"| {control} | {'; '.join(cells)} |")


def curve(measured):
    """The points of the curve: (length, microseconds)."""
    first = measured[0].get(CURVE.rstrip("/"), {})
    return [(int(length), statistics.median(run[CURVE.rstrip("/")][length] for run in measured))
            for length in first]


def print_curve(points):
    print("\ntext view, setText over an old text of")
    for length, microseconds in points:
        print(f"{length:8} characters {microseconds:10.0f} us")


def plot(points, path):
    """Writes a plot with logarithmic axes."""
    import math
    width, height, margin = 680, 420, 80
    xs = [math.log10(x) for x, _ in points]
    ys = [math.log10(y) for _, y in points]
    x_low, x_high = min(xs), max(xs)
    y_low, y_high = math.floor(min(ys)), math.ceil(max(ys))

    def at(x, y):
        return (margin + (x - x_low) / (x_high - x_low) * (width - 2 * margin),
                height - margin - (y - y_low) / (y_high - y_low) * (height - 2 * margin))

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
             'font-family="DejaVu Sans, sans-serif" font-size="12">',
             f'<rect width="{width}" height="{height}" fill="#fff"/>']
    for y in range(y_low, y_high + 1):
        _, py = at(x_low, y)
        parts.append(f'<line x1="{margin}" y1="{py:.1f}" x2="{width - margin}" y2="{py:.1f}" '
                     'stroke="#ddd"/>')
        parts.append(f'<text x="{margin - 8}" y="{py + 4:.1f}" text-anchor="end">{10 ** y:g}</text>')
    for (x, _), lx in zip(points, xs):
        px, _ = at(lx, y_low)
        parts.append(f'<text x="{px:.1f}" y="{height - margin + 18}" text-anchor="middle">{x}</text>')
    path_points = " ".join(f"{px:.1f},{py:.1f}" for px, py in map(at, xs, ys))
    parts.append(f'<polyline points="{path_points}" fill="none" stroke="#214b98" stroke-width="2"/>')
    for lx, ly in zip(xs, ys):
        px, py = at(lx, ly)
        parts.append(f'<circle cx="{px:.1f}" cy="{py:.1f}" r="3.5" fill="#214b98"/>')
    parts.append(f'<text x="{width / 2}" y="{height - 12}" text-anchor="middle">'
                 'characters of the old text</text>')
    parts.append(f'<text x="16" y="{height / 2}" text-anchor="middle" '
                 f'transform="rotate(-90 16 {height / 2})">microseconds for setText</text>')
    parts.append('</svg>\n')
    with open(path, "w", encoding="utf-8") as file:
        file.write("\n".join(parts))
    print(f"plot: {path}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", help="the built program, bench_controls for one")
    parser.add_argument("--runs", type=int, default=5, help="processes to run (default: 5)")
    parser.add_argument("--wall", action="store_true", help="compare wall time, not processor time")
    parser.add_argument("--compact", action="store_true", help="print a Markdown table")
    parser.add_argument("--plot", metavar="FILE.svg", help="plot setText of a text view")
    arguments = parser.parse_args()
    measured = measure(arguments.program, arguments.runs,
                       "real_time" if arguments.wall else "cpu_time")
    (print_compact if arguments.compact else print_rows)(rows_of(measured))
    points = curve(measured)
    if points:
        print_curve(points)
    if arguments.plot and points:
        plot(points, arguments.plot)


if __name__ == "__main__":
    main()
