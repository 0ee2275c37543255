#!/usr/bin/env python3
"""Runs the benchmarks and prints ratios, all from one run on one machine.

CPU time is user and system time of the measured process and what it started; memory is its peak. Each figure
is the median of several runs. Folders of many files are deleted at the very end only, since a file system is
slow for a while after that.
"""

import argparse
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from typing import NamedTuple


class Cost(NamedTuple):
    cpu: float
    wall: float
    memory: int
    output: str


def run(*command, stdout=None) -> Cost:
    """One process to its end."""
    start = time.monotonic()
    with tempfile.TemporaryFile() as captured:
        process = subprocess.Popen([str(word) for word in command], stdin=subprocess.DEVNULL,
                                   stdout=stdout or captured, stderr=subprocess.PIPE)
        errors = process.stderr.read()
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        wall = time.monotonic() - start
        if process.returncode != 0:
            sys.exit(f"error: {' '.join(map(str, command))} ended with {process.returncode}\n"
                     + errors.decode(errors="replace"))
        captured.seek(0)
        return Cost(usage.ru_utime + usage.ru_stime, wall, usage.ru_maxrss * 1024,
                    captured.read().decode(errors="replace"))


def middle(costs) -> Cost:
    return Cost(statistics.median(c.cpu for c in costs), statistics.median(c.wall for c in costs),
                int(statistics.median(c.memory for c in costs)), costs[-1].output)


def row(name: str, ratio: float, wanted: str, detail: str = "") -> None:
    print(f"  {name:<58} {ratio:7.2f}  {wanted:<12} {detail}", flush=True)


def seconds(cost: float) -> str:
    return f"{cost * 1000:.0f} ms"


class Bench:
    def __init__(self, binaries: pathlib.Path, folder: pathlib.Path, runs: int, records: int):
        self.binaries, self.folder, self.runs, self.records = binaries, folder, runs, records
        self.sqlite = shutil.which("sqlite3")
        self.main_cpu = {}

    def tool(self, name: str) -> pathlib.Path:
        return self.binaries / name

    def several(self, *command, runs=None) -> Cost:
        return middle([run(*command) for _ in range(runs or self.runs)])

    def data(self, rows: int) -> pathlib.Path:
        path = self.folder / f"data-{rows}.csv"
        if not path.exists():
            with open(path, "wb") as file:
                run(self.tool("bench-data"), rows, stdout=file)
        return path

    def ask_sqlite(self, data: pathlib.Path, order: str = "") -> Cost:
        costs = []
        for _ in range(self.runs):
            with open(self.folder / "sqlite.htm", "wb") as page:
                costs.append(run(self.sqlite, ":memory:", f".import --csv {data} t", ".headers on", ".mode html",
                                 f"select * from t {order};", stdout=page))
        return middle(costs)

    def report(self, data: pathlib.Path, folder: str, *options, runs=None) -> Cost:
        # The component's own default page, whose bytes the plain program writes.
        plain = ["--plain", "--no-sort", "--no-records", "--no-record-numbers", "--no-csv"]
        for option in options:
            plain = [each for each in plain if each != option.replace("--", "--no-", 1)]
        costs = []
        for number in range(runs or self.runs):
            into = self.folder / f"{folder}-{number}"
            into.mkdir(exist_ok=True)
            costs.append(run(self.tool("ostrel"), "report", data, "-o", into, *plain, *options))
        return middle(costs)

    def main_page(self, rows: int) -> None:
        print(f"\nMain page, {rows:,} rows by 10 columns")
        data = self.data(rows)
        plain_page = self.folder / "plain.htm"
        ours = self.report(data, f"main-{rows}")
        plain = self.several(self.tool("bench-page"), data, plain_page)
        page = max((self.folder / f"main-{rows}-0").glob("*.htm"), key=lambda path: path.stat().st_size)
        bytes_ours, bytes_plain = page.stat().st_size, plain_page.stat().st_size
        self.main_cpu[rows] = ours.cpu
        row("CPU of ostrel report / plain program", ours.cpu / plain.cpu, "at most 2.5",
            f"{seconds(ours.cpu)} / {seconds(plain.cpu)}")
        row("  bytes of its page / the plain program's", bytes_ours / bytes_plain, "1", f"{bytes_ours:,} bytes")
        if self.sqlite:
            shell = self.ask_sqlite(data)
            row("CPU of ostrel report / SQLite shell, import and HTML mode", ours.cpu / shell.cpu, "at most 0.5",
                seconds(shell.cpu))
        allowed = data.stat().st_size + 32 * 10 * rows + 2.2 * bytes_ours
        row("Peak memory / (input + 32 bytes a cell + 2.2 pages)", ours.memory / allowed, "at most 1",
            f"{ours.memory / 2**20:.0f} MB")
        base = data.stat().st_size + 32 * 10 * rows
        row("  pages beyond input and 32 bytes a cell", (ours.memory - base) / bytes_ours, "stretch 1.2")

    def from_arrays(self, rows: int) -> None:
        print(f"\nIn process, {rows:,} rows by 10 columns")
        figures = {}
        for _ in range(self.runs):
            into = self.folder / "arrays"
            shutil.rmtree(into, ignore_errors=True)
            into.mkdir()
            for line in run(self.tool("bench-report"), self.data(rows), into).output.splitlines():
                name, value = line.split()
                figures.setdefault(name, []).append(float(value))
        cost = {name: statistics.median(values) for name, values in figures.items()}
        row("Main page from arrays, made / plain loop", cost["main-made"] / cost["plain-made"], "at most 2",
            f"{seconds(cost['main-made'])} / {seconds(cost['plain-made'])}")
        row("  made and saved / plain loop and write", cost["main"] / cost["plain"], "",
            f"{seconds(cost['main'])} / {seconds(cost['plain'])}")
        both = cost["plain-sort"] + cost["plain-shuffled"]
        row("A page sorted up / plain sort and shuffled build", cost["up"] / both, "at most 2",
            f"{seconds(cost['up'])} / {seconds(cost['plain-sort'])} + {seconds(cost['plain-shuffled'])}")
        row("A page sorted down / the page sorted up", cost["down"] / cost["up"], "at most 0.7",
            seconds(cost["down"]))

    def sort_pages(self, rows: int) -> None:
        print(f"\nSort pages of ostrel report, {rows:,} rows")
        data = self.data(rows)
        without = self.report(data, f"main-{rows}")
        one = self.report(data, f"sorted-{rows}", "--sort", "Name")
        two = self.report(data, f"sorted-twice-{rows}", "--sort", "Name", "--sort", "Ordered")
        page = (one.cpu - without.cpu) / 2
        if self.sqlite:
            ordered = "order by Name collate nocase, rowid"
            once = self.ask_sqlite(data)
            twice = self.ask_sqlite(data, f"; select * from t {ordered}")
            row("CPU of a sort page / what a further, ordered page adds in the SQLite shell",
                page / max(twice.cpu - once.cpu, 1e-6), "at most 0.9",
                f"{seconds(page)} / {seconds(twice.cpu - once.cpu)}")
            row("CPU of a sort page / what ordering its one page adds there",
                page / max(self.ask_sqlite(data, ordered).cpu - once.cpu, 1e-6), "")
        row("Peak memory, two sort columns / none", two.memory / without.memory, "",
            f"{two.memory / 2**20:.0f} MB")

    def record_pages(self) -> None:
        rows = self.records
        print(f"\nRecord pages, {rows:,} of them")
        data = self.data(rows)
        without = self.report(data, "unrecorded", runs=1)
        made = self.report(data, "records", "--records", runs=1)
        folder = self.folder / "records-0"
        sizes = [path.stat().st_size for path in folder.glob("*_Rec_Num_*")]
        size = sum(sizes) // max(len(sizes), 1)
        again = self.report(data, "records", "--records", runs=1)
        plain = self.folder / "plain-records"
        plain.mkdir()
        write = run(self.tool("bench-files"), "write", plain, len(sizes), size)
        compare = run(self.tool("bench-files"), "compare", plain, len(sizes), size)
        for kind in ("wall", "cpu"):
            ours = getattr(made, kind) - getattr(without, kind)
            row(f"Rate of record pages / of plain file creation ({kind})", getattr(write, kind) / ours,
                "at least 0.5", f"{len(sizes) / ours:,.0f} a second of {size:,} bytes")
        for kind in ("wall", "cpu"):
            ours = getattr(again, kind) - getattr(without, kind)
            row(f"Rate of a second run / of reading and comparing ({kind})", getattr(compare, kind) / ours,
                "at least 0.4", f"{len(sizes) / ours:,.0f} a second")

    def services(self, rows: int) -> None:
        print(f"\nSorts of {rows:,} texts, and text services")
        cost = {}
        for line in run(self.tool("bench-services"), rows).output.splitlines():
            name, value = line.split()
            cost[name] = float(value)
        for name, value in cost.items():
            kind, shape = name.split(".", 1)
            if kind not in ("sort", "sort-watched"):
                continue
            seen = ", every pass watched" if kind == "sort-watched" else ""
            row(f"SortText / plain sort: {shape}{seen}", value / cost[f"sort-plain.{shape}"], "at most 1.5",
                seconds(value))
        row("Shell sort that compares texts / SortText", cost["sort-shell.random"] / cost["sort.random"],
            "at least 2.5")
        row("Slowest shape but long prefixes / random", max(
            value for name, value in cost.items() if name.startswith("sort.") and "prefix" not in name)
            / cost["sort.random"], "about 1")
        row("Searching a text as it is / prepared", cost["count-unprepared.help"] / cost["count-prepared.help"],
            "at least 8")
        row("Counting place by place in a prepared text / by phrase",
            cost["count-text.help"] / cost["count-prepared.help"], "at least 2")
        for name, value in cost.items():
            if not name.startswith("sort"):
                print(f"  {name:<58} {value * 1000:7.1f}  ms for 10 MB")

    def editing(self) -> None:
        print("\nThe text of an editor: an insertion in its middle, undo, memory")
        figures = {}
        for line in run(self.tool("bench-editing")).output.splitlines():
            name, value = line.split()
            figures[name] = float(value)
        for size in (1, 8, 64):
            of = {name.split(".")[0]: value for name, value in figures.items() if name.endswith(f".{size}")}
            row(f"Insertion in the middle of {size} MB: plain string / buffer",
                of["insert-string"] / of["insert"], "at least 10", f"{of['insert'] * 1e6:.2f} us")
            row(f"Edit anywhere in {size} MB / undo of it", of["insert-anywhere"] / of["undo"], "about 1",
                f"{of['insert-anywhere'] * 1e6:.2f} us")
            row(f"Opening of {size} MB / a copy of the string", of["open"] / of["copy"], "at most 5",
                seconds(of["open"]))
            row(f"Memory of {size} MB, opened / text", of["memory"], "at most 1.5")
            row(f"Memory of {size} MB, edited anywhere / text", of["memory-edited"], "at most 3")

    def typing(self) -> None:
        if not self.tool("bench-typing").exists():
            return
        print("\nThe text of an editor in a window, beside the toolkit's bare control without its history")
        figures = {}
        for line in run(self.tool("bench-typing")).output.splitlines():
            name, value = line.split()
            figures[name] = float(value)
        for size in ("1", "8", "64", "line"):
            of = {name.split(".")[0]: value for name, value in figures.items() if name.endswith(f".{size}")}
            text = "one line of 1 MB" if size == "line" else f"{size} MB"
            more = of["key"] - of["key-bare"]
            row(f"A key in the middle of {text}: ms beyond the bare control's", more * 1000, "at most 5",
                f"{of['key'] * 1e3:.2f} / {of['key-bare'] * 1e3:.2f} ms")
            row(f"Opening {text} / the bare control", of["open"] / of["open-bare"], "at most 2", seconds(of["open"]))
            row(f"Memory of {text} beside what the bare control holds / text", of["memory"], "at most 3")
            row(f"ReplaceSelection in {text}, without a window: ms", of["insert-at-selection"] * 1000, "at most 1")


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--bin", type=pathlib.Path, required=True, help="folder of the built programs")
    parser.add_argument("--large", action="store_true", help="measure 1,000,000 rows as well")
    parser.add_argument("--runs", type=int, default=3, help="runs a figure")
    parser.add_argument("--records", type=int, default=100_000, help="record pages to make")
    parser.add_argument("--only", choices=["main", "arrays", "sort", "records", "services", "editing", "typing"],
                        action="append")
    parser.add_argument("--folder", type=pathlib.Path, help="where the files go for the time being")
    options = parser.parse_args()

    chosen = options.only or ["main", "arrays", "sort", "services", "editing", "typing", "records"]
    folder = pathlib.Path(tempfile.mkdtemp(prefix="ostrel-bench-", dir=options.folder))
    bench = Bench(options.bin.resolve(), folder, options.runs, options.records)
    print(f"{'':60} {'ratio':>7}  wanted")
    try:
        for rows in [100_000] + ([1_000_000] if options.large else []):
            for name, part in (("main", bench.main_page), ("arrays", bench.from_arrays),
                               ("sort", bench.sort_pages), ("services", bench.services)):
                if name in chosen:
                    part(rows)
        if options.large and "main" in chosen:
            row("CPU of ten times the rows / of the rows", bench.main_cpu[1_000_000] / bench.main_cpu[100_000],
                "at most 12")
        if "editing" in chosen:
            bench.editing()
        if "typing" in chosen:
            bench.typing()
        if "records" in chosen:
            bench.record_pages()
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
