#!/usr/bin/env python3
"""Measures the help search in memory against ripgrep, which counts the same phrase on one thread over the same
directory, and prints ratios of CPU time from one run on one machine: the median of several."""

import argparse
import pathlib
import random
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile

EVERYWHERE = "help system"  # a phrase of every page
RARE = "quince marmalade"   # a phrase of one page in five hundred
WORDS = """a about after all also an and any are as at be because been before button by can change click close
column command could dialog directory do each edit entry field file first font for format from given has have header
help how if in index insert into is it its key last left line link list load main make may menu message more most
move must name new next no not number of on one only open option or other out page part path place press print
property range record report row save search section select set shown sort start style system table tag text than
that the then there these they this title to toolbar total two type under up use used user value was when where
which width will window with word work you""".split()
PAGE = """<!DOCTYPE html>
<HTML>
<HEAD>
<TITLE>{title}</TITLE>
<META NAME="Keywords" CONTENT="{keywords}">
<LINK REL="stylesheet" HREF="style.css">
</HEAD>
<BODY>
<H1>{title}</H1>
<P>A page of the help system, <A HREF="index.htm">see the index</A>.</P>
{body}
</BODY>
</HTML>
"""


def paragraph(chance: random.Random) -> str:
    """A paragraph of some 600 bytes, common words more often than others, broken into lines."""
    words = chance.choices(WORDS, weights=[1 + 40 // len(word) ** 2 for word in WORDS], k=100)
    words[10] = f"<B>{words[10]}</B>"
    words[40] = f'<A HREF="page{chance.randrange(10_000):05}.htm">{words[40]}</A>'
    lines = [" ".join(words[start:start + 14]) for start in range(0, len(words), 14)]
    return "<P CLASS=\"text\">" + "\n".join(lines).capitalize() + ".</P>"


def make_pages(folder: pathlib.Path, count: int) -> int:
    """Makes pages of about 8 KB and returns their size in all."""
    chance = random.Random(1)
    paragraphs = [paragraph(chance) for _ in range(1000)]
    size = 0
    for number in range(count):
        body = chance.choices(paragraphs, k=14)
        if number % 500 == 7:
            body[5] += f"\n<P>Recipe: {RARE}.</P>"
        title = " ".join(chance.choices(WORDS, k=4)).title()
        page = PAGE.format(title=title, keywords=", ".join(chance.choices(WORDS, k=5)), body="\n\n".join(body))
        (folder / f"page{number:05}.htm").write_text(page)
        size += len(page)
    return size


def cpu_of(*command) -> tuple[float, str]:
    """The CPU time of a process and what it printed."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True, check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, done.stdout


class Bench:
    def __init__(self, binaries: pathlib.Path, folder: pathlib.Path, runs: int):
        self.binaries, self.folder, self.runs = binaries, folder, runs

    def ripgrep(self, phrase: str) -> float:
        return statistics.median(cpu_of("rg", "-j1", "-c", "-F", phrase, self.folder)[0] for _ in range(self.runs))

    def search(self, *phrases: str) -> list[float]:
        """CPU seconds of the load, of the load with the first query, and of a query for each phrase."""
        figures = []
        for _ in range(self.runs):
            output = cpu_of(self.binaries / "bench-search", self.folder, *phrases)[1]
            figures.append([float(line.split()[1]) for line in output.splitlines()])
        return [statistics.median(column) for column in zip(*figures)]


def row(name: str, value: float, wanted: str, detail: str = "") -> None:
    print(f"  {name:<50} {value:8.2f}  {wanted:<14} {detail}", flush=True)


def milliseconds(ours: float, theirs: float) -> str:
    return f"{ours * 1000:.1f} / {theirs * 1000:.1f} ms"


def measure(binaries: pathlib.Path, folder: pathlib.Path, count: int, runs: int) -> None:
    size = make_pages(folder, count)
    print(f"{count:,} pages, {size / 2**20:.0f} MB; CPU of the search / of one run of ripgrep")
    bench = Bench(binaries, folder, runs)
    everywhere, rare = bench.ripgrep(EVERYWHERE), bench.ripgrep(RARE)
    load, first, of_all, of_few = bench.search(EVERYWHERE, RARE)
    if count < 1000:
        row("Load and first query", first / everywhere, "at most 1", milliseconds(first, everywhere))
        return
    row("Load", load / everywhere, "at most 8", milliseconds(load, everywhere))
    row("Query that all pages match", of_all / everywhere, "at most 0.3", milliseconds(of_all, everywhere))
    row("Query that few pages match", of_few / rare, "at most 0.2", milliseconds(of_few, rare))
    row("Peak memory, MB", resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024, "at most 250")


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--bin", type=pathlib.Path, required=True, help="directory of the built programs")
    parser.add_argument("--runs", type=int, default=5, help="runs a figure")
    parser.add_argument("--folder", type=pathlib.Path, help="where the pages go for the time being")
    options = parser.parse_args()
    if not shutil.which("rg"):
        sys.exit("error: ripgrep is missing")
    for count in (10_000, 100):
        with tempfile.TemporaryDirectory(prefix="ostrel-bench-", dir=options.folder) as name:
            measure(options.bin.resolve(), pathlib.Path(name), count, options.runs)


if __name__ == "__main__":
    main()
