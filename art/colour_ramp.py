"""The colour wheel under the colour slider: six stretches of 35 columns, in each of which one channel moves."""

from image_files import Image

PURE = ((255, 0, 0), (255, 255, 0), (0, 255, 0), (0, 255, 255), (0, 0, 255), (255, 0, 255), (255, 0, 0))
# How a channel rises within a stretch; a falling one reads it backwards.
RISE = (0, 4, 9, 13, 19, 25, 31, 39, 46, 54, 62, 69, 78, 87, 95, 104, 114, 123,
        132, 141, 150, 159, 168, 177, 185, 193, 202, 209, 216, 223, 230, 236, 241, 247, 251, 255)
STRETCH = len(RISE) - 1
COLUMNS, ROWS = (len(PURE) - 1) * STRETCH + 1, 11


def ramp_colour(column):
    """The fully saturated colour (R, G, B) of a column, 0 to 210."""
    stretch, step = divmod(column, STRETCH)
    if step == 0:
        return PURE[stretch]
    return tuple(start if start == end else RISE[step] if end else RISE[STRETCH - step]
                 for start, end in zip(PURE[stretch], PURE[stretch + 1]))


def ramp_picture(scale):
    """The ramp between a black line above and one below; columns are doubled, since the program samples them."""
    ramp = b"".join(bytes(ramp_colour(column)) * scale for column in range(COLUMNS))
    black = bytes(len(ramp))
    return Image([row for row in [black, *[ramp] * (ROWS - 2), black] for _ in range(scale)], 3)
