#!/usr/bin/env python3
"""Writes the p-median MIP of an OR-Library p-median instance in LP format.

Usage: pmed_mip.py INSTANCE > model.lp

The graph and its shortest path lengths d(i, j) come from pmed_graph.py. Variables x_i_j (node
j served by the median at node i, binary; x_i_i says that node i is a median); minimise the sum
of d(i, j) x_i_j over all pairs (every node weighs 1), every node served once, x_i_j <= x_i_i,
and exactly p medians.
"""

import sys

from pmed_graph import read_distances


def main():
    n, p, _, d = read_distances(sys.argv[1])
    out = sys.stdout
    out.write("Minimize\n obj:")
    for i in range(n):
        for j in range(n):
            if i != j:
                out.write("\n + %r x%d_%d" % (float(d[i][j]), i, j))
    out.write("\nSubject To\n")
    for j in range(n):
        out.write(" a%d: %s = 1\n" % (j, " + ".join("x%d_%d" % (i, j) for i in range(n))))
    for i in range(n):
        for j in range(n):
            if i != j:
                out.write(" b%d_%d: x%d_%d - x%d_%d <= 0\n" % (i, j, i, j, i, i))
    out.write(" p: %s = %d\n" % (" + ".join("x%d_%d" % (i, i) for i in range(n)), p))
    out.write("Binary\n")
    for i in range(n):
        for j in range(n):
            out.write(" x%d_%d\n" % (i, j))
    out.write("End\n")


main()
