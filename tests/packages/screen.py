#!/usr/bin/env python3
"""Whether something is shown on a virtual display: screen.py FRAMEBUFFER [PICTURE]

FRAMEBUFFER is the file that Xvfb keeps with -fbdir. On an empty display all is black; a window fills a good part of it, in
many colours. PICTURE is written as PNG where something is shown."""

import struct
import sys
import zlib


def read(path):
    with open(path, "rb") as file:
        data = file.read()
    header = struct.unpack(">25I", data[:100])
    size, width, height, line, colors = header[0], header[4], header[5], header[12], header[19]
    start = size + 12 * colors
    rows = []
    for y in range(height):
        pixels = data[start + y * line:start + y * line + 4 * width]
        row = bytearray(3 * width)
        row[0::3], row[1::3], row[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
        rows.append(bytes(row))
    return width, height, rows


def write(path, width, height, rows):
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                   chunk(b"IDAT", zlib.compress(b"".join(b"\0" + row for row in rows))) + chunk(b"IEND", b""))


def main():
    width, height, rows = read(sys.argv[1])
    colors = {}
    for row in rows:
        for x in range(0, 3 * width, 3):
            pixel = row[x:x + 3]
            colors[pixel] = colors.get(pixel, 0) + 1
    lit = 1 - colors.get(b"\0\0\0", 0) / (width * height)
    if lit < 0.2 or len(colors) < 40:
        return 1
    if len(sys.argv) > 2:
        write(sys.argv[2], width, height, rows)
    return 0


if __name__ == "__main__":
    sys.exit(main())
