#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""What a script would do: the coefficients of uniformity and the distribution uniformity of center-pivot tests,
with NumPy and nothing of the program: baseline.py FILE... prints a line for each, baseline.py --computation FILE...
the seconds of the computation alone and the sum of the distribution uniformities."""

import sys
import time

import numpy

RECORD = numpy.dtype({
    "names": ["diameter", "gauges"],
    "formats": ["S20", (numpy.dtype([("sequence", "<f4"), ("footage", "<f4"), ("volume", "<f4"), ("spare", "<f4")]), 301)],
    "offsets": [1936, 4096],
    "itemsize": 9002,
})


def read(path):
    return numpy.fromfile(path, RECORD, 1)[0]


def compute(record):
    """Christiansen's and Heermann and Hein's coefficients, and the distribution uniformity of the low quarter."""
    gauges, diameter = record["gauges"], float(record["diameter"])
    zero = gauges["volume"][1:] == 0
    count = int(numpy.argmax(zero[:-1] & zero[1:]))
    cups = gauges[1:count + 1]
    depth = cups["volume"] * 4.0 / (diameter ** 2 * numpy.pi) * 0.393700787
    footage = cups["footage"].astype(float)
    average = depth.mean()
    christiansen = (1 - numpy.abs(depth - average).sum() / depth.sum()) * 100
    weighted = depth * footage
    mean = weighted.sum() / footage.sum()
    heermann_hein = (1 - (numpy.abs(depth - mean) * footage).sum() / weighted.sum()) * 100
    quarter = count / 4
    lowest = numpy.sort(depth)[:round(quarter)]
    return christiansen, heermann_hein, lowest.sum() / quarter / average * 100


def main(arguments):
    if arguments[:1] == ["--computation"]:
        tests = [read(path) for path in arguments[1:]]
        begin = time.perf_counter()
        total = sum(compute(test)[2] for test in tests)
        print("%.9f %.3f" % (time.perf_counter() - begin, total))
        return
    for path in arguments:
        print(path, "%.4f %.4f %.4f" % compute(read(path)))


if __name__ == "__main__":
    main(sys.argv[1:])
