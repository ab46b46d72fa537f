#!/usr/bin/env python3
"""Runs bench_controls and prints each row as a ratio to bare Qt.

Usage: report.py BENCH_CONTROLS [--runs N] [--compact] [--plot FILE.svg]

Each run is a process of its own, so that a lucky or unlucky layout of memory shows as a range. A
row's ratio is taken within a run, and the median over the runs is printed.
"""

import argparse
import collections
import json
import math
import statistics
import subprocess
import sys

CURVE = "text view/length/"


def run_program(program):
    command = [program, "--benchmark_format=json", "--benchmark_min_time=0.1"]
    result = subprocess.run(command, stdout=subprocess.PIPE, check=True)
    return json.loads(result.stdout)["benchmarks"]


def measure(program, runs):
    """The rows of each run: [{name: row}]."""
    measured = []
    for number in range(runs):
        print(f"run {number + 1} of {runs}, may take a minute ...", file=sys.stderr)
        rows = {row["name"]: row for row in run_program(program)}
        for name, row in rows.items():
            if row.get("error_occurred"):
                sys.exit(f"{name}: {row['error_message']}")
        measured.append(rows)
    return measured


class Row:
    """A row's medians over the runs, in nanoseconds, and the range of its ratio."""

    def __init__(self, name, measured):
        ratios = [run[name]["ratio"] for run in measured]
        self.name = name
        self.qt = statistics.median(run[name]["qt"] for run in measured)
        self.ratio, self.low, self.high = statistics.median(ratios), min(ratios), max(ratios)
        self.extra = statistics.median(run[name]["qt"] * (run[name]["ratio"] - 1) for run in measured)


def print_rows(rows):
    print(f"{'control/group/row':50} {'Qt, ns':>10} {'ratio':>7}  {'range':11} {'more, ns':>10}")
    for row in rows:
        print(f"{row.name:50} {row.qt:10.0f} {row.ratio:7.2f}  {row.low:.2f}-{row.high:<6.2f} "
              f"{row.extra:+10.0f}")


def print_compact(rows):
    """Markdown tables with a line for each control: NAME RATIO (NANOSECONDS MORE). The plot's rows
    are left out."""
    lines = collections.defaultdict(list)
    for row in (row for row in rows if not row.name.startswith(CURVE)):
        control, group, name = row.name.split("/", 2)
        lines[group, control].append(f"{name} {row.ratio:.2f} ({row.extra:+.0f})")
    for group in dict.fromkeys(group for group, _ in lines):
        print(f"\n| {group} | ratio to Qt (ns more) |\n|---|---|")
        for (_, control), cells in filter(lambda line: line[0][0] == group, lines.items()):
            print(f"| {control} | {'; '.join(cells)} |")


def curves(rows):
    """The curves of setText: {label: [(length, microseconds)]}."""
    rows = [row for row in rows if row.name.startswith(CURVE)]
    lengths = [int(row.name[len(CURVE):]) for row in rows]
    return {"CFxUITextView::setText": list(zip(lengths, [(row.qt + row.extra) / 1000 for row in rows])),
            "QTextEdit::setPlainText": list(zip(lengths, [row.qt / 1000 for row in rows]))}


class Plot:
    """An SVG picture with logarithmic axes."""
    WIDTH, HEIGHT, MARGIN = 680, 420, 80
    COLORS = ("#214b98", "#b0521d")

    def __init__(self, series):
        xs = [x for points in series.values() for x, _ in points]
        ys = [y for points in series.values() for _, y in points]
        self.x_low, self.x_high = math.log10(min(xs)), math.log10(max(xs))
        self.y_low, self.y_high = max(0, math.floor(math.log10(min(ys)))), math.ceil(math.log10(max(ys)))
        self.parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.WIDTH}" '
                      f'height="{self.HEIGHT}" font-family="DejaVu Sans, sans-serif" font-size="12">',
                      f'<rect width="{self.WIDTH}" height="{self.HEIGHT}" fill="#fff"/>']
        self.draw_axes(sorted(set(xs)))
        for color, (label, points) in zip(self.COLORS, series.items()):
            self.draw_curve(color, label, points)
        self.parts.append('</svg>\n')

    def at(self, x, y):
        width, height = self.WIDTH - 2 * self.MARGIN, self.HEIGHT - 2 * self.MARGIN
        return (self.MARGIN + (math.log10(x) - self.x_low) / (self.x_high - self.x_low) * width,
                self.HEIGHT - self.MARGIN
                - (math.log10(y) - self.y_low) / (self.y_high - self.y_low) * height)

    def text(self, x, y, text, attributes=""):
        self.parts.append(f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="middle" {attributes}>{text}</text>')

    def draw_axes(self, xs):
        left, right = self.MARGIN, self.WIDTH - self.MARGIN
        for exponent in range(self.y_low, self.y_high + 1):
            _, y = self.at(xs[0], 10 ** exponent)
            self.parts.append(f'<line x1="{left}" y1="{y:.1f}" x2="{right}" y2="{y:.1f}" stroke="#ddd"/>')
            self.text(left - 30, y + 4, f"{10 ** (exponent % 3)} {('us', 'ms', 's')[exponent // 3]}")
        for x in xs:
            self.text(self.at(x, 10 ** self.y_low)[0], self.HEIGHT - self.MARGIN + 18, x)
        self.text(self.WIDTH / 2, self.HEIGHT - 12, "characters of the old text and of the new one")

    def draw_curve(self, color, label, points):
        places = [self.at(x, y) for x, y in points]
        line = " ".join(f"{x:.1f},{y:.1f}" for x, y in places)
        self.parts.append(f'<polyline points="{line}" fill="none" stroke="{color}" stroke-width="2"/>')
        self.parts += [f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3.5" fill="{color}"/>' for x, y in places]
        x, y = places[len(places) // 2]
        self.text(x - 60, y - 16, label, f'fill="{color}"')

    def write(self, path):
        with open(path, "w", encoding="utf-8") as file:
            file.write("\n".join(self.parts))
        print(f"plot: {path}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", help="the built program bench_controls")
    parser.add_argument("--runs", type=int, default=3, help="processes to run (default: 3)")
    parser.add_argument("--compact", action="store_true", help="print Markdown tables")
    parser.add_argument("--plot", metavar="FILE.svg", help="plot setText of a text view")
    arguments = parser.parse_args()
    measured = measure(arguments.program, arguments.runs)
    rows = [Row(name, measured) for name in measured[0]]
    (print_compact if arguments.compact else print_rows)(rows)
    if arguments.plot:
        Plot(curves(rows)).write(arguments.plot)


if __name__ == "__main__":
    main()
