#!/usr/bin/env python3
"""Writes the strong MIP of an OR-Library uncapacitated facility location instance in LP format.

Usage: ufl_mip.py INSTANCE > model.lp

Variables y_i (site i open, binary) and x_i_j (share of customer j served by site i, in [0, 1]);
minimise the fixed costs of the open sites plus the serving costs, every customer served once,
and x_i_j <= y_i for every pair (the strong form, whose relaxation is tight on these instances).
The file is read as whitespace-separated tokens; the word "capacity" of capa to capc is skipped.
"""

import sys


def main():
    tokens = open(sys.argv[1]).read().split()
    m, n = int(tokens[0]), int(tokens[1])
    pos = 2
    fixed = []
    for _ in range(m):
        pos += 1  # the capacity, a number or the word "capacity"
        fixed.append(float(tokens[pos]))
        pos += 1
    cost = []
    for _ in range(n):
        pos += 1  # the demand
        cost.append([float(t) for t in tokens[pos:pos + m]])
        pos += m
    out = sys.stdout
    out.write("Minimize\n obj:")
    for i in range(m):
        out.write(" + %r y%d" % (fixed[i], i))
    for j in range(n):
        for i in range(m):
            out.write("\n + %r x%d_%d" % (cost[j][i], i, j))
    out.write("\nSubject To\n")
    for j in range(n):
        out.write(" a%d: %s = 1\n" % (j, " + ".join("x%d_%d" % (i, j) for i in range(m))))
    for j in range(n):
        for i in range(m):
            out.write(" b%d_%d: x%d_%d - y%d <= 0\n" % (i, j, i, j, i))
    out.write("Bounds\n")
    for j in range(n):
        for i in range(m):
            out.write(" 0 <= x%d_%d <= 1\n" % (i, j))
    out.write("Binary\n")
    for i in range(m):
        out.write(" y%d\n" % i)
    out.write("End\n")


main()
