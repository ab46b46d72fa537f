#!/usr/bin/env python3
"""Runs a benchmark program and prints each row as a ratio to bare Qt.

Usage: ratios.py BENCH_PROGRAM [--wall] [--plot FILE.svg]

The repetitions of all rows are interleaved and the medians compared, so that a change of the
machine's speed during the run hits both sides of a pair alike.
"""

import argparse
import json
import statistics
import subprocess
import sys


def measure(program, clock):
    command = [program, "--benchmark_format=json", "--benchmark_repetitions=9",
               "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.02"]
    print("measuring, some minutes ...", file=sys.stderr)
    result = subprocess.run(command, stdout=subprocess.PIPE, check=True)
    samples = {}
    for row in json.loads(result.stdout)["benchmarks"]:
        if row["run_type"] == "iteration":
            samples.setdefault(row["run_name"].replace("/real_time", ""), []).append(row[clock])
    return {name: statistics.median(values) for name, values in samples.items()}


def print_ratios(medians):
    """One line for each row NAME/PEER: the time, and its ratio to NAME/qt."""
    for name, time in sorted(medians.items()):
        row, _, peer = name.rpartition("/")
        if row + "/qt" in medians:
            print(f"{row:28} {peer:10} {time:12.0f} ns {time / medians[row + '/qt']:7.2f}")


def curve(medians):
    """The points of "text view setText/LENGTH": (length, microseconds)."""
    prefix = "text view setText/"
    return sorted((int(name[len(prefix):]), value)
                  for name, value in medians.items() if name.startswith(prefix))


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
    parser.add_argument("--wall", action="store_true", help="compare wall time, not processor time")
    parser.add_argument("--plot", metavar="FILE.svg", help="plot setText of a text view")
    arguments = parser.parse_args()
    medians = measure(arguments.program, "real_time" if arguments.wall else "cpu_time")
    print_ratios(medians)
    points = curve(medians)
    if points:
        print("\ntext view, setText over an old text of")
    for length, microseconds in points:
        print(f"{length:8} characters {microseconds:10.0f} us")
    if arguments.plot and points:
        plot(points, arguments.plot)


if __name__ == "__main__":
    main()
