"""The SVG that xsec writes is drawn by another program, with the fill colour of a region where its label stands.

Names written there may cover it, so the pixels round the label are looked at.

usage: svg_is_rendered.py XSEC SAMPLES FOLDER
"""

import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree

from outputs import SAMPLES, SKIPPED, arguments, finish, regions_of, run_xsec

WIDTH = 1200  # pixels


def pixels_of(svg, folder):
    """Width, height and a function that gives the colour at a pixel, of the picture as rsvg-convert and Python see it."""
    png = folder / (svg.stem + ".png")
    subprocess.run(["rsvg-convert", "--width", str(WIDTH), "--output", png, svg], check=True)
    return read_png(png.read_bytes())


def read_png(data):
    """Rows of an 8-bit RGB or RGBA picture without interlace."""
    import struct
    import zlib
    at, idat = 8, b""
    while at < len(data):
        size, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + size]
        if kind == b"IHDR":
            width, height, depth, colours, _, _, interlace = struct.unpack(">IIBBBBB", body)
            assert depth == 8 and colours in (2, 6) and interlace == 0
        idat += body if kind == b"IDAT" else b""
        at += size + 12
    step = 3 if colours == 2 else 4
    raw, rows, before = zlib.decompress(idat), [], bytes(width * step)
    for y in range(height):
        start = y * (width * step + 1)
        before = unfiltered(raw[start], bytearray(raw[start + 1:start + 1 + width * step]), before, step)
        rows.append(before)
    return width, height, lambda x, y: tuple(rows[y][x * step:x * step + 3])


def unfiltered(kind, row, above, step):
    for i in range(len(row)):
        a = row[i - step] if i >= step else 0
        b, c = above[i], above[i - step] if i >= step else 0
        if kind == 4:
            p = a + b - c
            nearest = min((abs(p - a), 0, a), (abs(p - b), 1, b), (abs(p - c), 2, c))[2]
        row[i] = (row[i] + {0: 0, 1: a, 2: b, 3: (a + b) // 2, 4: nearest if kind == 4 else 0}[kind]) & 255
    return bytes(row)


def main():
    xsec, samples, folder = arguments(["XSEC", "SAMPLES", "FOLDER"])
    if not shutil.which("rsvg-convert"):
        print("skipped: there is no rsvg-convert")
        sys.exit(SKIPPED)
    faults, looked, wanted_looks = [], 0, 0
    for sample in SAMPLES[:2]:
        regions = regions_of(xsec, samples / f"{sample}.dxf", folder)["regions"]
        svg = folder / f"{sample}.svg"
        run_xsec(xsec, samples / f"{sample}.dxf", "-o", svg)
        width, height, colour_at = pixels_of(svg, folder)
        root = xml.etree.ElementTree.parse(svg).getroot()
        left, top, box_width, _ = map(float, root.get("viewBox").split())
        scale = width / box_width
        fills = dict(re.findall(r'<path id="region-(\d+)" fill="(#[0-9a-f]{6})"', svg.read_text(encoding="utf-8")))
        for region in regions:
            wanted_looks += 1
            x, y = (region["label"][0] - left) * scale, (-region["label"][1] - top) * scale
            reach = int(region["clearance"] * scale * 0.7)
            if reach < 3:  # too small to tell its colour from that of its outline
                continue
            looked += 1
            wanted = tuple(int(fills[str(region["id"])][i:i + 2], 16) for i in (1, 3, 5))
            near = {colour_at(min(max(int(x) + dx, 0), width - 1), min(max(int(y) + dy, 0), height - 1))
                    for dx in range(-reach, reach + 1) for dy in range(-reach, reach + 1)}
            if wanted not in near:
                faults.append(f"{sample}: {region['uniqueName']} is not filled with {wanted} at its label")
    if looked < 0.7 * wanted_looks:
        faults.append(f"only {looked} of {wanted_looks} regions were large enough to look at")
    finish(faults, looked)


main()
