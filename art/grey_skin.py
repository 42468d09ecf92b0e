"""The grey levels of the skin, computed. One light for the whole frame: it comes from the white page, so the frame
brightens towards it, and the four bands meet without a seam because they are cut from the same light."""

from image_files import Image

WINDOW_WIDTH, WINDOW_HEIGHT = 777, 553
COLUMN_WIDTH = 170
RIGHT_BAND_WIDTH, BAND_HEIGHT = 31, 31
MENU_TOP, ROW_HEIGHT, MENU_ROWS = 49, 35, 13
TAB_WIDTH, TAB_HEIGHT, TAB_RADIUS = 135, 31, 9
BAR_HEIGHT = 35
# The lines of the word on the tab and of the name on the bar, and the levels on which white letters can be read.
TAB_TEXT_TOP, TAB_TEXT_FOOT, TAB_LEVEL = 7, 24, 83
BAR_TEXT_TOP, BAR_LEVEL, BAR_FOOT = 9, 86, 80
NOTCH_LEFT, NOTCH_TOP, NOTCH_WIDTH, NOTCH_HEIGHT = 163, 11, 7, 13

# Place, left and top in the window, and size of each picture cut from the frame.
BANDS = {
    "S1": (0, 0, 170, 553),
    "S2": (170, 0, 576, 31),
    "S3": (170, 522, 576, 31),
    "S4": (746, 0, 31, 553),
}

BAYER = (
    (0, 32, 8, 40, 2, 34, 10, 42),
    (48, 16, 56, 24, 50, 18, 58, 26),
    (12, 44, 4, 36, 14, 46, 6, 38),
    (60, 28, 52, 20, 62, 30, 54, 22),
    (3, 35, 11, 43, 1, 33, 9, 41),
    (51, 19, 59, 27, 49, 17, 57, 25),
    (15, 47, 7, 39, 13, 45, 5, 37),
    (63, 31, 55, 23, 61, 29, 53, 21),
)


def clamp(value, low, high):
    return min(max(value, low), high)


def smooth(t):
    """0 to 1, level at both ends."""
    t = clamp(t, 0.0, 1.0)
    return t * t * (3 - 2 * t)


def dithered(level, x, y):
    """A whole level; what lies between two levels becomes a pattern of both, so that no bands show."""
    return int(clamp(level + (BAYER[y % 8][x % 8] + 0.5) / 64, 0, 255))


def page_glow(x, y):
    """What the white page adds to the frame close to its edge."""
    aside = max(COLUMN_WIDTH - x, x - (WINDOW_WIDTH - RIGHT_BAND_WIDTH), 0)
    above = max(BAND_HEIGHT - y, y - (WINDOW_HEIGHT - BAND_HEIGHT), 0)
    return 8 * clamp(1 - (aside * aside + above * above) ** 0.5 / 22, 0, 1) ** 2


def frame_light(x, y):
    """The frame's level at a pixel centre of the window."""
    across = smooth(x / COLUMN_WIDTH) if x < COLUMN_WIDTH else 1.0
    behind_page = x - (WINDOW_WIDTH - RIGHT_BAND_WIDTH)
    if behind_page > 0:
        across = 1.0 - 0.35 * smooth(behind_page / RIGHT_BAND_WIDTH)
    from_edge = 1.0 - abs(2 * y / WINDOW_HEIGHT - 1)
    down = 1.0 - (1.0 - from_edge) ** 3
    return 46 + 12 * across + 18 * down * (0.5 + 0.5 * across) + page_glow(x, y)


def row_line(x, y):
    """What a thin groove between two menu rows adds, fading towards both ends."""
    row, place = divmod(int(y) - MENU_TOP, ROW_HEIGHT)
    fade = smooth((x - 6) / 40) * smooth((COLUMN_WIDTH - 6 - x) / 40)
    if place == ROW_HEIGHT - 1 and -1 <= row < MENU_ROWS:
        return -18 * fade
    if place == 0 and 0 <= row <= MENU_ROWS:
        return 12 * fade
    return 0.0


def tab_distance(x, y):
    """Pixels from the options tab's edge, negative inside; only its lower right corner is free."""
    dx, dy = x - (TAB_WIDTH - TAB_RADIUS), y - (TAB_HEIGHT - TAB_RADIUS)
    if dx > 0 and dy > 0:
        return (dx * dx + dy * dy) ** 0.5 - TAB_RADIUS
    return max(dx, dy) - TAB_RADIUS


def gloss(y, top, calm, height):
    """A polished surface lit from above: top in its first line, calm from height on, where the letters stand."""
    return calm + (top - calm) * clamp(1 - (y - 0.5) / height, 0, 1) ** 1.5


def column_light(x, y):
    """The left column: the frame's light, the grooves of the menu, and the options tab at the top left."""
    ground = frame_light(x, y) + row_line(x, y)
    edge = tab_distance(x, y)
    ground -= 16 * clamp(1 - edge / 4, 0, 1) ** 2
    tab = gloss(y, 170, TAB_LEVEL, TAB_TEXT_TOP) + 16 * smooth((y - TAB_TEXT_FOOT) / (TAB_HEIGHT - TAB_TEXT_FOOT))
    if -2 < edge <= -1:
        tab = min(tab + 20, 170)
    cover = clamp(0.5 - edge, 0, 1)
    return ground + (tab - ground) * cover


def from_segment(x, y, start, end):
    """Pixels from a straight line's nearest point."""
    run, rise = end[0] - start[0], end[1] - start[1]
    t = clamp(((x - start[0]) * run + (y - start[1]) * rise) / (run * run + rise * rise), 0, 1)
    return ((x - start[0] - t * run) ** 2 + (y - start[1] - t * rise) ** 2) ** 0.5


def notch_distance(x, y):
    """Pixels from the arrow's triangle, 0 inside; the lower half mirrors the upper one."""
    across, half = x - NOTCH_LEFT, NOTCH_HEIGHT / 2
    aside = abs(y - NOTCH_TOP - half)
    if across >= 0 and aside <= half * (1 - across / NOTCH_WIDTH):
        return 0.0
    return min(from_segment(across, aside, (0, 0), (0, half)),
               from_segment(across, aside, (0, half), (NOTCH_WIDTH, 0)))


def bar_light(x, y):
    """The highlight bar, with its dark last line and the notch in which the arrow lies."""
    if y > BAR_HEIGHT - 1:
        return 36.0
    below = smooth((y - BAR_TEXT_TOP) / (BAR_HEIGHT - BAR_TEXT_TOP))
    level = gloss(y, 180, BAR_LEVEL, BAR_TEXT_TOP) + (BAR_FOOT - BAR_LEVEL) * below
    return level - 48 * clamp(1 - notch_distance(x, y) / 3, 0, 1) ** 1.5


def picture(light, left, top, width, height, scale):
    """A grey picture of a light; the dither is counted in device pixels of the window and so runs on across seams."""
    return Image([
        [dithered(light((x + 0.5) / scale, (y + 0.5) / scale), x, y)
         for x in range(left * scale, (left + width) * scale)]
        for y in range(top * scale, (top + height) * scale)
    ], 1)


def skin_pictures(scale):
    """Every skin picture by its name, at scale device pixels for a pixel of the window."""
    pictures = {name: picture(column_light if name == "S1" else frame_light, *place, scale)
                for name, place in BANDS.items()}
    pictures["BM"] = picture(bar_light, 0, 0, COLUMN_WIDTH, BAR_HEIGHT, scale)
    return pictures
