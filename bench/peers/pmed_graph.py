"""Reads an OR-Library p-median instance for the peer scripts: the file is "n m p" and m lines
"i j cost" of an undirected graph; where a pair is listed more than once, the last line for it
gives the cost (as scripts/orlib-pmed-to-mero reads it). The shortest path lengths come from
scipy's Dijkstra on a compressed sparse matrix."""

from scipy.sparse import csr_matrix
from scipy.sparse.csgraph import dijkstra


def read_distances(path):
    """Returns n, p, the edge lengths by node pair (i, j), i < j, counted from 0, and the n by n
    array of shortest path lengths."""
    tokens = open(path).read().split()
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
    return n, p, lengths, dijkstra(csr_matrix((data, (rows, cols)), shape=(n, n)), directed=True)
