"""Reads the PNG files that the SVG renderer writes; writes BMP and PNG files. Pixels are (R, G, B, A), alpha straight."""

import struct
import zlib

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"
TRUECOLOUR, TRUECOLOUR_ALPHA = 2, 6


class Image:
    """Rows of (R, G, B, A) from top to bottom."""

    def __init__(self, rows):
        self.rows = rows
        self.width = len(rows[0])
        self.height = len(rows)


def png_chunks(data):
    """Each chunk's type and body (PNG, W3C, section 5.3)."""
    at = len(PNG_SIGNATURE)
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        yield kind, data[at + 8 : at + 8 + length]
        at += length + 12


def paeth(left, above, corner):
    guess = left + above - corner
    nearest = min(abs(guess - left), abs(guess - above), abs(guess - corner))
    if nearest == abs(guess - left):
        return left
    return above if nearest == abs(guess - above) else corner


def unfiltered(kind, line, above, step):
    """A line's bytes before the filter of PNG section 9.2, step bytes a pixel."""
    line = bytearray(line)
    for i in range(len(line)):
        left, corner = (line[i - step], above[i - step]) if i >= step else (0, 0)
        guess = (0, left, above[i], (left + above[i]) // 2, paeth(left, above[i], corner))[kind]
        line[i] = (line[i] + guess) & 255
    return line


def read_png(data):
    """An 8-bit true-colour PNG, not interlaced: what the renderer writes, with alpha only where it is needed."""
    chunks = list(png_chunks(data))
    width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", dict(chunks)[b"IHDR"])
    if depth != 8 or colour not in (TRUECOLOUR, TRUECOLOUR_ALPHA) or interlaced:
        raise ValueError("the renderer wrote another kind of PNG than 8-bit RGB or RGBA")
    step = 4 if colour == TRUECOLOUR_ALPHA else 3
    packed = zlib.decompress(b"".join(body for kind, body in chunks if kind == b"IDAT"))
    above, rows = bytes(width * step), []
    for at in range(0, height * (width * step + 1), width * step + 1):
        above = unfiltered(packed[at], packed[at + 1 : at + 1 + width * step], above, step)
        rows.append([(*above[x : x + 3], above[x + 3] if step == 4 else 255) for x in range(0, width * step, step)])
    return Image(rows)


def png_bytes(image):
    """A PNG without filters and without any other chunk, so that equal pixels give equal bytes."""

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", image.width, image.height, 8, TRUECOLOUR_ALPHA, 0, 0, 0)
    lines = b"".join(b"\0" + bytes(c for pixel in row for c in pixel) for row in image.rows)
    return (PNG_SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(lines, 9)) + chunk(b"IEND", b""))


def bmp_bytes(image, with_alpha):
    """An uncompressed bottom-up BMP: 24 bits a pixel, or 32 with straight alpha in the fourth byte."""
    depth = 32 if with_alpha else 24
    lines = b""
    for row in reversed(image.rows):
        line = bytes(c for r, g, b, a in row for c in ((b, g, r, a) if with_alpha else (b, g, r)))
        lines += line + bytes(-len(line) % 4)
    file_header = struct.pack("<2sIHHI", b"BM", 54 + len(lines), 0, 0, 54)
    return file_header + struct.pack(
        "<IiiHHIIiiII", 40, image.width, image.height, 1, depth, 0, len(lines), 0, 0, 0, 0) + lines


def read_bmp(data):
    """The image in a file of bmp_bytes' form and its bits a pixel; ValueError for any other form."""
    magic, size, _, _, start = struct.unpack_from("<2sIHHI", data)
    header, width, height, planes, depth, packing, _ = struct.unpack_from("<IiiHHII", data, 14)
    if (magic, size, start, header, planes, packing) != (b"BM", len(data), 54, 40, 1, 0) or depth not in (24, 32):
        raise ValueError("not an uncompressed BMP with a header of 54 bytes")
    stride, step = (width * depth // 8 + 3) // 4 * 4, depth // 8
    if width < 1 or height < 1 or size != 54 + stride * height:
        raise ValueError("length and size disagree")
    rows = []
    for y in reversed(range(height)):
        line = data[54 + y * stride : 54 + (y + 1) * stride]
        pixels = (line[x : x + step] for x in range(0, width * step, step))
        rows.append([(p[2], p[1], p[0], p[3] if step == 4 else 255) for p in pixels])
    return Image(rows), depth
