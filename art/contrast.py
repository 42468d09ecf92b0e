"""How well the light letters on the skin can be read, at every place of the colour slider.

Contrast as WCAG 2.1 counts it; the tint is the program's own: a level is shifted by the colour and the shine."""

from colour_ramp import COLUMNS, ramp_colour

# A level stays as it is in a channel of 220 at the highest shine, which is also the default.
SHINE, UNCHANGED = 24, 244
ENOUGH = 4.5

# The letters' level, the picture, and the boxes of the text: left, top, width and height in pixels of the window.
TEXTS = {
    "section names": (255, "S1", [(20, 58 + 35 * row, 150, 17) for row in range(13)]),
    "word Options": (250, "S1", [(47, 7, 80, 17)]),
    "open section's name": (255, "BM", [(20, 9, 140, 17)]),
}


def luminance(colour):
    linear = [c / 12.92 if c <= 0.03928 else ((c + 0.055) / 1.055) ** 2.4 for c in (v / 255 for v in colour)]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def tinted(level, colour):
    return [min(max(level + base + SHINE - UNCHANGED, 0), 255) for base in colour]


def contrast(letters, level, colour):
    return (luminance([letters] * 3) + 0.05) / (luminance(tinted(level, colour)) + 0.05)


def brightest(image, boxes, scale):
    """The highest level behind the letters: a tint never changes the order of levels."""
    return max(max(row[left * scale : (left + width) * scale])
               for left, top, width, height in boxes
               for row in image.rows[top * scale : (top + height) * scale])


def worst_contrasts(skin, scale):
    """For each text its name, the worst contrast, and the slider's place where it is."""
    for name, (letters, picture, boxes) in TEXTS.items():
        level = brightest(skin[picture], boxes, scale)
        yield name, *min((contrast(letters, level, ramp_colour(place)), place) for place in range(COLUMNS))
