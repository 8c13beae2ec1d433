#!/usr/bin/env python3
"""All-pairs shortest paths of an OR-Library p-median graph with scipy's Dijkstra, then the
1-median (least row sum, all weights 1) and the node center (least row maximum), or the absolute
center (all weights 1).

Usage: pmed_scipy.py INSTANCE             prints "median VALUE" and "center VALUE"
       pmed_scipy.py INSTANCE abscenter   prints "abscenter VALUE"

The absolute center on an edge u-v of length L: node i is served from the point at t with
min(a + t, b + L - t), a = D(u,i), b = D(v,i). Taking the nodes by decreasing a (then b), those
whose b exceeds every b before them are the ones on the upper envelope; between two consecutive
ones p, q the envelope falls with p and rises with q, with its low point at
t = (b_p + L - a_q) / 2 of value (a_q + b_p + L) / 2 where that t lies on the edge. The ends of
the edge score max a and max b (Hakimi 1964 for the method, the usual form for unit weights).

The graph is read by pmed_graph.py.
"""

import sys

import numpy as np

from pmed_graph import read_distances


def main():
    _, _, lengths, d = read_distances(sys.argv[1])
    if len(sys.argv) > 2 and sys.argv[2] == "abscenter":
        print("abscenter %.17g" % absolute_center(d, lengths))
        return
    print("median %.17g" % d.sum(axis=1).min())
    print("center %.17g" % d.max(axis=1).min())


def absolute_center(d, lengths):
    best = min(d.max(axis=1))
    for (u, v), length in lengths.items():
        a, b = d[u], d[v]
        order = np.lexsort((-b, -a))
        a, b = a[order], b[order]
        before = np.maximum.accumulate(np.concatenate(([-np.inf], b[:-1])))
        top = np.nonzero(b > before)[0]
        ap, bp = a[top], b[top]
        t = (bp[:-1] + length - ap[1:]) / 2
        value = (ap[1:] + bp[:-1] + length) / 2
        inside = (t >= 0) & (t <= length)
        if inside.any():
            best = min(best, value[inside].min())
        best = min(best, a.max(), b.max())
    return best


main()
