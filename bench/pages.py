#!/usr/bin/env python3
"""Measures how fast pages of reports are shown by the engine of the window, and prints ratios against the same
pages without their style sheet, from one run on one machine: the median of several pairs."""

import argparse
import csv
import os
import pathlib
import re
import statistics
import subprocess
import tempfile


def make_table(binaries: pathlib.Path, folder: pathlib.Path, rows: int, columns: int) -> pathlib.Path:
    path = folder / f"table{rows}x{columns}.csv"
    text = subprocess.run([binaries / "bench-data", str(rows)], check=True, capture_output=True, text=True).stdout
    with open(path, "w", newline="", encoding="utf-8") as file:
        writer = csv.writer(file, lineterminator="\n")
        for number, values in enumerate(csv.reader(text.splitlines())):
            more = values[:columns - len(values)] if columns > len(values) else []
            writer.writerow(values + ([name + " again" for name in more] if number == 0 else more))
    return path


def show(binaries: pathlib.Path, page: pathlib.Path, *clicked: str) -> dict[str, float]:
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_LOGGING_RULES="*=false")
    words = subprocess.run([binaries / "bench-show", page, *clicked], check=True, capture_output=True, text=True,
                           env=environment).stdout.split()
    return {name: float(value) for name, value in zip(words[::2], words[1::2])}


def middle(runs: list[dict[str, float]]) -> dict[str, float]:
    return {name: statistics.median(run[name] for run in runs) for name in runs[0]}


def row(name: str, value: str, wanted: str, detail: str = "") -> None:
    print(f"  {name:<58} {value:>9}  {wanted:<12} {detail}", flush=True)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--bin", type=pathlib.Path, required=True, help="directory of the built programs")
    parser.add_argument("--runs", type=int, default=3, help="pairs of each measurement")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for rows, columns in ((10_000, 10), (10_000, 14), (100_000, 10)):
            table = make_table(options.bin, folder, rows, columns)
            subprocess.run([options.bin / "ostrel", "report", table, "-o", folder, "--sort", "Price", "--no-csv",
                            "--quiet"], check=True)
            page = table.with_suffix(".htm")
            print(f"{rows} rows by {columns} columns")
            if rows > 10_000:
                run = middle([show(options.bin, page) for _ in range(options.runs)])
                row("First picture", f"{run['picture']:.0f} ms", "2000")
                row("Longest silence behind it", f"{run['silence']:.0f} ms", "")
                row("Laid out and drawn", f"{run['done'] / 1000:.1f} s", "40")
                row("Most memory", f"{run['memory']:.0f} MB", "1500")
                continue
            plain = page.with_name("plain.htm")
            plain.write_bytes(re.sub(b"<STYLE>.*?</STYLE>", b"", page.read_bytes(), count=1, flags=re.DOTALL))
            with_style, without = [], []
            for _ in range(options.runs):
                with_style.append(show(options.bin, page, "thead a"))
                without.append(show(options.bin, plain))
            ours, theirs = middle(with_style), middle(without)
            row("Time to the last picture / without the style sheet",
                f"{statistics.median(a['done'] / b['done'] for a, b in zip(with_style, without)):.2f}", "0.2",
                f"{ours['done']:.0f} ms, {theirs['done']:.0f} ms")
            row("Memory / without the style sheet",
                f"{statistics.median(a['memory'] / b['memory'] for a, b in zip(with_style, without)):.2f}", "0.3",
                f"{ours['memory']:.0f} MB, {theirs['memory']:.0f} MB")
            row("First picture", f"{ours['picture']:.0f} ms", "")
            row("From a click on a header to the first picture", f"{ours['click']:.0f} ms", "1000")


if __name__ == "__main__":
    main()
