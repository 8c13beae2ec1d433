#!/usr/bin/env python3
"""Checks the SVG backend: svg_picture draws a known scene; the file must parse as XML with the
figures at the pixel positions worked out by hand, and rsvg-convert must render it with the right
colours at those places. Exits 77 (skipped) when rsvg-convert is missing."""
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
import zlib

NS = "{http://www.w3.org/2000/svg}"


def read_png(path):
    """A decoder for what rsvg-convert writes: 8-bit RGB or RGBA, not interlaced."""
    data = open(path, "rb").read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    pos, idat = 8, b""
    while pos < len(data):
        length, kind = struct.unpack(">I4s", data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + length]
        if kind == b"IHDR":
            width, height, depth, ctype, _, _, interlace = struct.unpack(">IIBBBBB", body)
            assert depth == 8 and ctype in (2, 6) and interlace == 0, (depth, ctype, interlace)
            bpp = 3 if ctype == 2 else 4
        elif kind == b"IDAT":
            idat += body
        pos += 12 + length
    raw, stride = zlib.decompress(idat), width * bpp
    rows, prev = [], bytearray(stride)
    for y in range(height):
        f, line = raw[y * (stride + 1)], bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            a = line[i - bpp] if i >= bpp else 0
            b, c = prev[i], prev[i - bpp] if i >= bpp else 0
            if f == 1:
                line[i] = (line[i] + a) & 255
            elif f == 2:
                line[i] = (line[i] + b) & 255
            elif f == 3:
                line[i] = (line[i] + (a + b) // 2) & 255
            elif f == 4:
                p = a + b - c
                pa, pb, pc = abs(p - a), abs(p - b), abs(p - c)
                line[i] = (line[i] + (a if pa <= pb and pa <= pc else b if pb <= pc else c)) & 255
        rows.append(line)
        prev = line
    return lambda x, y: tuple(rows[y][x * bpp:x * bpp + 3])


def main():
    picture = sys.argv[1]
    with tempfile.TemporaryDirectory() as tmp:
        svg, png = os.path.join(tmp, "scene.svg"), os.path.join(tmp, "scene.png")
        subprocess.run([picture, svg], check=True)
        root = ET.parse(svg).getroot()
        assert root.tag == NS + "svg" and root.get("width") == "400" and root.get("height") == "300"
        polygon = root.find(NS + "polygon")
        assert polygon.get("points") == "40.00,260.00 160.00,260.00 160.00,140.00 40.00,140.00"
        assert polygon.get("fill") == "#0000e0"
        circle = root.find(NS + "circle")
        assert (circle.get("cx"), circle.get("cy"), circle.get("r")) == ("280.00", "100.00", "40.00")
        line = root.find(NS + "polyline")
        assert line.get("points") == "0.00,20.00 400.00,20.00" and line.get("stroke-width") == "5"
        text = root.find(NS + "text")
        assert (text.get("x"), text.get("y"), text.text) == ("200.00", "220.00", "mero")
        first = root.find(NS + "g").find(NS + "rect")
        assert (first.get("x"), first.get("y"), first.get("width")) == ("320.00", "220.00", "4")
        if not shutil.which("rsvg-convert"):
            print("check_svg: rsvg-convert is missing, rendering not checked")
            return 77
        subprocess.run(["rsvg-convert", "-o", png, svg], check=True)
        pixel = read_png(png)
        expected = {(100, 200): (0, 0, 224), (280, 100): (224, 0, 0), (312, 100): (224, 0, 0),
                    (200, 20): (0, 160, 0), (200, 18): (0, 160, 0), (200, 21): (0, 160, 0), (200, 24): (255, 255, 255), (322, 222): (240, 208, 0),
                    (10, 10): (255, 255, 255), (100, 100): (255, 255, 255),
                    (330, 100): (255, 255, 255)}
        for (x, y), colour in expected.items():
            assert pixel(x, y) == colour, ((x, y), pixel(x, y), colour)
    print("check_svg: XML and rendering agree with the scene")
    return 0


if __name__ == "__main__":
    sys.exit(main())
