"""Reads and writes the picture files. Pixels are bytes, row by row from the top: grey, RGB, or RGB and straight alpha."""

import struct
import zlib

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"
# PNG's colour types (W3C, section 11.2.1) by bytes a pixel.
COLOUR_TYPES = {1: 0, 3: 2, 4: 6}
STEPS = {colour: step for step, colour in COLOUR_TYPES.items()}


class Image:
    """Rows of equal length; step is the number of bytes a pixel: 1, 3 or 4."""

    def __init__(self, rows, step):
        self.rows = [bytes(row) for row in rows]
        self.step = step
        self.width = len(self.rows[0]) // step
        self.height = len(self.rows)

    def plane(self, channel):
        """One channel of every row; grey is its own red, green and blue, and what has no alpha is opaque."""
        if channel == 3 and self.step != 4:
            return [b"\xff" * self.width] * self.height
        return [row[channel % self.step :: self.step] for row in self.rows]

    def joined(self, channels):
        """The same pixels, made of the channels named by their numbers, in that order."""
        rows = [bytearray(self.width * len(channels)) for _ in self.rows]
        for place, channel in enumerate(channels):
            for row, values in zip(rows, self.plane(channel)):
                row[place :: len(channels)] = values
        return Image(rows, len(channels))


def paeth(left, above, corner):
    guess = left + above - corner
    nearest = min(abs(guess - left), abs(guess - above), abs(guess - corner))
    if nearest == abs(guess - left):
        return left
    return above if nearest == abs(guess - above) else corner


def unfiltered(kind, line, above, step):
    """A line's bytes before the filter of PNG section 9.2, step bytes a pixel."""
    if kind == 0:
        return line
    line = bytearray(line)
    for i in range(len(line)):
        left, corner = (line[i - step], above[i - step]) if i >= step else (0, 0)
        guess = (0, left, above[i], (left + above[i]) // 2, paeth(left, above[i], corner))[kind]
        line[i] = (line[i] + guess) & 255
    return line


def png_chunks(data):
    """Each chunk's type and body (PNG, section 5.3)."""
    at = len(PNG_SIGNATURE)
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        yield kind, data[at + 8 : at + 8 + length]
        at += length + 12


def read_png(data):
    """An 8-bit grey, RGB or RGBA PNG that is not interlaced; ValueError for any other."""
    if not data.startswith(PNG_SIGNATURE):
        raise ValueError("not a PNG")
    chunks = list(png_chunks(data))
    width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", dict(chunks)[b"IHDR"])
    if depth != 8 or colour not in STEPS or interlaced:
        raise ValueError("another kind of PNG than 8-bit grey, RGB or RGBA")
    step = STEPS[colour]
    packed = zlib.decompress(b"".join(body for kind, body in chunks if kind == b"IDAT"))
    above, rows, length = bytes(width * step), [], width * step + 1
    for at in range(0, height * length, length):
        above = unfiltered(packed[at], packed[at + 1 : at + length], above, step)
        rows.append(above)
    return Image(rows, step)


def png_bytes(image):
    """A PNG without filters and without any other chunk, so that equal pixels give equal bytes."""

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", image.width, image.height, 8, COLOUR_TYPES[image.step], 0, 0, 0)
    lines = b"".join(b"\0" + row for row in image.rows)
    return PNG_SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(lines, 9)) + chunk(b"IEND", b"")


def bmp_bytes(image):
    """An uncompressed bottom-up BMP: 32 bits a pixel with straight alpha in the fourth byte, or 24 without."""
    pixels = image.joined((2, 1, 0, 3) if image.step == 4 else (2, 1, 0))
    lines = b"".join(row + bytes(-len(row) % 4) for row in reversed(pixels.rows))
    file_header = struct.pack("<2sIHHI", b"BM", 54 + len(lines), 0, 0, 54)
    return file_header + struct.pack(
        "<IiiHHIIiiII", 40, image.width, image.height, 1, pixels.step * 8, 0, len(lines), 0, 0, 0, 0) + lines
