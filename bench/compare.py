#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Measures the program and writes tables: compare.py BUILD FOLDER. BUILD has the built programs; FOLDER is for files.

First comparisons of the same work done otherwise, the two in turn on the same machine, so that the ratio counts: it is
that of the medians. Then the times of single pieces."""

import contextlib
import json
import os
import pathlib
import platform
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
FILES = 10_000
MANY_FILES = 50_000
FEW_FILES = 1_000


def main(build, folder):
    programs = Programs(pathlib.Path(build).resolve())
    folder = pathlib.Path(folder).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    print(machine(folder))
    print()
    with tempfile.TemporaryDirectory(dir=folder) as scratch:
        table = Table()
        compare_command_line(programs, pathlib.Path(scratch), table)
        compare_computation(programs, pathlib.Path(scratch), table)
        compare_rich_text(programs, pathlib.Path(scratch), table)
        compare_pieces(programs, table)
        compare_windows(programs, pathlib.Path(scratch), table)
    table.print()
    print()
    print_pieces(programs)


def machine(folder):
    """What this ran on."""
    def first(path, begin):
        with open(path, encoding="utf-8") as lines:
            return next((line.split(":", 1)[1].strip() for line in lines if line.startswith(begin)), platform.machine())
    memory = int(first("/proc/meminfo", "MemTotal").split()[0]) / 1e6
    system = run(["findmnt", "--noheadings", "--output", "FSTYPE", "--target", folder], text=True).strip()
    compiler = run(["c++", "-dumpfullversion"], text=True).strip()
    return "%s, %d cores, %.0f GB, files on %s; Linux %s, g++ %s, Python %s; %s." % (
        first("/proc/cpuinfo", "model name"), os.cpu_count(), memory, system, platform.release(), compiler,
        platform.python_version(), time.strftime("%Y-%m-%d"))


class Programs:
    def __init__(self, build):
        self.cli = build / "cli/orvel-cli"
        self.bench = build / "bench"
        self.baseline = [sys.executable, HERE / "baseline.py"]


class Table:
    """What was compared, the ratio, its target if it has one, and what was measured."""

    def __init__(self):
        self.rows = []

    def slower(self, what, ours, others, target=None):
        """How many times as long the program takes."""
        self._add(what, ratio_of(ours, others), "at most", target, both(ours, others))

    def faster(self, what, ours, others, target=None):
        """How many times as long the other takes."""
        self._add(what, ratio_of(others, ours), "at least", target, both(ours, others))

    def at_most(self, what, ratio, target, measured):
        self._add(what, ratio, "at most", target, measured)

    def print(self):
        print("| what | ratio | target | met | the program, the other |")
        print("| --- | ---: | ---: | --- | --- |")
        for row in self.rows:
            print("| " + " | ".join(row) + " |")

    def _add(self, what, ratio, word, target, measured):
        if target is None:
            goal, answer = "", ""
        else:
            is_met = ratio <= target if word == "at most" else ratio >= target
            goal, answer = "%s %g" % (word, target), "yes" if is_met else "**no**"
        self.rows.append([what, "%.2f" % ratio, goal, answer, measured])


# --- Measuring -------------------------------------------------------------------------------------------


def run(command, **options):
    """What the command prints."""
    done = subprocess.run(command, check=False, **{"stdout": subprocess.PIPE, **options})
    if done.returncode != 0:
        # Not all of its arguments.
        raise SystemExit("%s ended with status %d" % (" ".join(map(str, command[:3])), done.returncode))
    return done.stdout


def seconds_of(command, **options):
    begin = time.perf_counter()
    run(command, **{"stdout": subprocess.DEVNULL, **options})
    return time.perf_counter() - begin


def in_turn(times, *works):
    """The seconds that each work takes, so many times; they are done in turn."""
    seconds = [[] for _ in works]
    for _ in range(times):
        for each, work in zip(seconds, works):
            each.append(work())
    return seconds


def ratio_of(left, right):
    return middle(left) / middle(right)


def middle(values):
    return statistics.median(values)


def both(ours, others):
    return "%s, %s" % (readable(middle(ours)), readable(middle(others)))


def readable(seconds):
    for unit, size in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return "%.3g %s" % (seconds / size, unit)
    return "%.3g ns" % (seconds * 1e9)


# --- What is compared ------------------------------------------------------------------------------------


def compare_command_line(programs, scratch, table):
    tests = scratch / "tests"
    tests.mkdir()
    run([programs.bench / "bench_files", tests, str(MANY_FILES)])
    names = sorted(path.name for path in tests.glob("*.cpd"))
    files = names[:FILES]

    outputs = OutputFolders(scratch)
    reports = outputs.new()
    run([programs.cli, "report", "--format", "text", "--output-dir", reports, *files], cwd=tests)

    def timed(*command):
        """Times it with a new folder in place of "{}"."""
        def work():
            folder = outputs.new()
            os.sync()  # what others have written is not to be waited for here
            return seconds_of([folder if each == "{}" else each for each in command], cwd=tests)
        return work

    cat, results, numpy, report, replace, copy, export = in_turn(
        7, timed("cat", *files), timed(programs.cli, "results", *files), timed(*programs.baseline, *files),
        timed(programs.cli, "report", "--format", "text", "--output-dir", "{}", *files),
        timed(programs.bench / "bench_replace", reports, "{}"), timed("cp", *files, "{}"),
        timed(programs.cli, "export", "--output-dir", "{}", *files))
    outputs.remove()
    table.slower("`orvel-cli results` of 10,000 files, against `cat` of them", results, cat, 2.5)
    table.slower("`orvel-cli report --format text --output-dir` of them, against `bench_replace` of the reports", report,
                 replace, 1.5)
    table.slower("the same, against `cp` of the files", report, copy, 2.5)
    table.slower("the same, against `cat`", report, cat)
    table.slower("`orvel-cli export --output-dir` of them, against `cp`", export, copy)
    table.slower("the same, against `cat`", export, cat)
    table.faster("`orvel-cli results`: faster than the NumPy script, start-up of both included", results, numpy, 1.5)
    table.faster("`orvel-cli report`: faster than the NumPy script's results", report, numpy)
    table.faster("`orvel-cli export`: faster than the NumPy script's results", export, numpy)

    start, few, many = in_turn(5, timed(programs.cli, "results", names[0]),
                               timed(programs.cli, "results", *names[:FEW_FILES]),
                               timed(programs.cli, "results", *names))
    few_each = [(f - s) / (FEW_FILES - 1) for f, s in zip(few, start)]
    many_each = [(m - s) / (MANY_FILES - 1) for m, s in zip(many, start)]
    ratio = ratio_of(many_each, few_each)
    table.at_most("`orvel-cli results`, a file of 50,000 and one of 1,000, the larger over the smaller",
                  max(ratio, 1 / ratio), 1.3, both(many_each, few_each))


class OutputFolders:
    """New folders. They are removed together, since a file system needs seconds to get over the removal of many files."""

    def __init__(self, scratch):
        self.scratch = scratch
        self.folders = []

    def new(self):
        self.folders.append(tempfile.mkdtemp(dir=self.scratch))
        return self.folders[-1]

    def remove(self):
        for folder in self.folders:
            shutil.rmtree(folder)
        self.folders = []


def compare_computation(programs, scratch, table):
    files = sorted((scratch / "tests").glob("*.cpd"))[:FEW_FILES]
    sums = set()

    def timed(command):
        def work():
            seconds, total = run(command).split()
            sums.add(float(total))
            return float(seconds)
        return work

    ours, numpy = in_turn(7, timed([programs.bench / "bench_computation", *files]),
                          timed([*programs.baseline, "--computation", *files]))
    if max(sums) - min(sums) > 1e-6 * max(sums):  # ours are Singles
        raise SystemExit("the two computations differ: %s" % sums)
    table.faster("the computation alone of 1,000 tests: faster than NumPy's", ours, numpy, 5)


def compare_rich_text(programs, scratch, table):
    program = programs.bench / "bench_rich_text"
    sizes = {"100 KB": 100_000, "1 MB": 1_000_000, "10 MB": 10_000_000, "50 MB": 50_000_000}
    for name, size in sizes.items():
        run([program, "--make", scratch / name, str(size)])
    reading = {name: [] for name in sizes}
    writing = {name: [] for name in sizes}
    memory = {name: [] for name in sizes}
    for _ in range(9):
        for name in sizes:
            # As much work for each, so that none of them is over before the processor is at its speed.
            times = max(sizes.values()) // sizes[name]
            size, read, write, grown = map(float, run([program, scratch / name, str(times)]).split())
            reading[name].append(read / size)
            writing[name].append(write / size)
            memory[name].append(grown / size)
    for what, costs in (("reading", reading), ("writing", writing)):
        each = [middle(costs[name]) for name in sizes]
        table.at_most("%s rich text: a byte of %s at its dearest, over its cheapest" % (what, ", ".join(sizes)),
                      max(each) / min(each), 1.3, ", ".join("%.1f" % (cost * 1e9) for cost in each) + " ns")
    table.at_most("memory of reading and writing rich text, over the file's bytes", max(map(max, memory.values())), 20,
                  ", ".join("%.1f" % max(memory[name]) for name in sizes))


def compare_pieces(programs, table):
    core = benchmarks(programs.bench / "core_bench", "^(Report|CopyReport)/pivot$")
    report, copies = core["Report/pivot"], core["CopyReport/pivot"]
    table.slower("building a report of 298 cups, against copying its bytes 1,000 times", report, copies, 0.2)


def compare_windows(programs, scratch, table):
    tests = scratch / "tests"
    test = sorted(tests.glob("*.cpd"))[79]  # of 100 cups
    bare = programs.bench / "bench_bare_window"
    shown = programs.bench / "bench_shown"
    with display() as environment:
        ours, bares = in_turn(21, lambda: seconds_of([shown, tests], env=environment),
                              lambda: seconds_of([bare], env=environment))
        table.slower("start-up to the shown main window, against a bare one with a menu", ours, bares, 1.5)
        ours = [float(run([shown, tests, test], env=environment)) for _ in range(5)]
        bares = [float(run([bare], env=environment)) for _ in range(5)]
    ui = benchmarks(programs.bench / "ui_bench", "^(ShowReport|ShowBareText)/|TypeReading")
    for kind, cups in (("pivot", "298 cups"), ("solid", "12 by 25 cups")):
        table.slower("a report of %s built, shown and coloured, against the same text in a bare text control" % cups,
                     ui["ShowReport/" + kind], ui["ShowBareText/" + kind], 3)
    typing = middle(ui["TypeReading/until_painted/manual_time"])
    write = middle(ui["TypeReading/recovery_file/manual_time"])
    table.at_most("three digits and Down until they are painted, over a frame of 16 ms", typing / 0.016, 1,
                  "%s; then the recovery file %s" % (readable(typing), readable(write)))
    table.at_most("memory with a report open, against a bare window", ratio_of(ours, bares), 1.5,
                  "%.1f MB, %.1f MB" % (middle(ours) / 1e6, middle(bares) / 1e6))


def print_pieces(programs):
    print("| piece | time |")
    print("| --- | ---: |")
    for program in ("core_bench", "ui_bench"):
        for name, seconds in benchmarks(programs.bench / program, ".", 1).items():
            print("| %s | %s |" % (name.removesuffix("/manual_time").removesuffix("/real_time"), readable(seconds[0])))


def benchmarks(program, names, times=9):
    """The seconds of each benchmark, so many times, all of them mixed."""
    answer = json.loads(run([
        program, "--benchmark_filter=" + names, "--benchmark_repetitions=%d" % times, "--benchmark_min_time=0.1",
        "--benchmark_enable_random_interleaving=" + ("true" if times > 1 else "false"), "--benchmark_format=json"],
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*=false"}))
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
    seconds = {}
    for each in answer["benchmarks"]:
        if each.get("error_occurred"):
            raise SystemExit("%s: %s" % (each["name"], each["error_message"]))
        if each["run_type"] == "iteration":
            seconds.setdefault(each["run_name"], []).append(each["real_time"] * units[each["time_unit"]])
    return seconds


@contextlib.contextmanager
def display():
    """An X display that nobody sees: the environment of programs that use it."""
    read_end, write_end = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-noreset", "-screen", "0", "1280x800x24"],
                              pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    try:
        with os.fdopen(read_end) as answer, tempfile.TemporaryDirectory() as home:
            number = answer.readline().strip()
            yield {**os.environ, "DISPLAY": ":" + number, "QT_QPA_PLATFORM": "xcb", "HOME": home,
                   "XDG_CONFIG_HOME": home, "XDG_RUNTIME_DIR": home}
    finally:
        server.terminate()
        server.wait()


if __name__ == "__main__":
    main(*sys.argv[1:])
