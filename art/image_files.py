"""Reads and writes the picture files. Pixels are bytes, row by row from the top: grey, RGB, or RGB and straight alpha."""

import io

import PIL.Image

# The library's modes by bytes a pixel.
MODES = {1: "L", 3: "RGB", 4: "RGBA"}


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


def read_png(data):
    """An 8-bit grey, RGB or RGBA PNG; ValueError for any other."""
    with PIL.Image.open(io.BytesIO(data), formats=["PNG"]) as picture:
        step = next((step for step, mode in MODES.items() if mode == picture.mode), None)
        if step is None:
            raise ValueError("another kind of PNG than 8-bit grey, RGB or RGBA")
        pixels, length = picture.tobytes(), picture.width * step
        return Image([pixels[at : at + length] for at in range(0, len(pixels), length)], step)


def png_bytes(image):
    """A PNG without any chunk that is not needed, so that equal pixels give equal bytes."""
    picture = PIL.Image.frombytes(MODES[image.step], (image.width, image.height), b"".join(image.rows))
    file = io.BytesIO()
    picture.save(file, "PNG", optimize=True)
    return file.getvalue()
