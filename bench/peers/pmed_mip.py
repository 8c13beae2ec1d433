#!/usr/bin/env python3
"""Writes the p-median MIP of an OR-Library p-median instance in LP format.

Usage: pmed_mip.py INSTANCE > model.lp

The file is "n m p" and m lines "i j cost" of an undirected graph; where a pair is listed more
than once, the last line for it gives the cost (as scripts/orlib-pmed-to-mero reads it). The
shortest path lengths d(i, j) come from scipy's Dijkstra. Variables x_i_j (node j served by the
median at node i, binary; x_i_i says that node i is a median); minimise the sum of d(i, j) x_i_j
over all pairs (every node weighs 1), every node served once, x_i_j <= x_i_i, and exactly p
medians.
"""

import sys

from scipy.sparse import csr_matrix
from scipy.sparse.csgraph import dijkstra


def main():
    tokens = open(sys.argv[1]).read().split()
    n, m, p = int(tokens[0]), int(tokens[1]), int(tokens[2])
    lengths = {}
    pos = 3
    for _ in range(m):
        i, j, c = int(tokens[pos]) - 1, int(tokens[pos + 1]) - 1, float(tokens[pos + 2])
        pos += 3
        lengths[(min(i, j), max(i, j))] = c
    rows = [a for a, b in lengths] + [b for a, b in lengths]
    cols = [b for a, b in lengths] + [a for a, b in lengths]
    data = list(lengths.values()) * 2
    d = dijkstra(csr_matrix((data, (rows, cols)), shape=(n, n)), directed=True)
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
