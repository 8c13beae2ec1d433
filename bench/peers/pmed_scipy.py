#!/usr/bin/env python3
"""All-pairs shortest paths of an OR-Library p-median graph with scipy's Dijkstra, then the
1-median (least row sum, all weights 1) and the node center (least row maximum).

Usage: pmed_scipy.py INSTANCE     prints "median VALUE" and "center VALUE"

The file is "n m p" and m lines "i j cost" of an undirected graph; where a pair is listed more
than once, the last line for it gives the cost (as scripts/orlib-pmed-to-mero reads it).
"""

import sys

import numpy as np
from scipy.sparse import csr_matrix
from scipy.sparse.csgraph import dijkstra


def main():
    tokens = open(sys.argv[1]).read().split()
    n, m = int(tokens[0]), int(tokens[1])
    lengths = {}
    pos = 3
    for _ in range(m):
        i, j, c = int(tokens[pos]) - 1, int(tokens[pos + 1]) - 1, float(tokens[pos + 2])
        pos += 3
        lengths[(min(i, j), max(i, j))] = c
    rows = [a for a, b in lengths] + [b for a, b in lengths]
    cols = [b for a, b in lengths] + [a for a, b in lengths]
    data = list(lengths.values()) * 2
    graph = csr_matrix((data, (rows, cols)), shape=(n, n))
    d = dijkstra(graph, directed=True)
    print("median %.17g" % d.sum(axis=1).min())
    print("center %.17g" % d.max(axis=1).min())


main()
