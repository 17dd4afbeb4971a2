#!/usr/bin/env python3
"""Checks the default theme: every picture that the widgets ask for, and the style sheets.

Usage: check_theme.py THEME_FOLDER      prints what is wrong and fails if anything is
       check_theme.py --faults THEME_FOLDER
                                        breaks copies of the theme, one fault each, and fails unless
                                        each fault is reported
"""

import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "theme" / "source"))

from themefiles import (  # noqa: E402
    SHARED_IMAGES, SHEET_IMAGES, STATES, THEMES, THREE_STATE_IMAGES, ThemeFolder, gif_frames, parse_rules,
    png_chunks, THEME_PLACEHOLDER)
import themefiles  # noqa: E402

THEME_IMAGES = {**SHEET_IMAGES, **themefiles.THEME_IMAGES}

# Title bars are this dark in every theme, so these must be visible on it in every theme.
TITLE_GROUND = (0x2B, 0x2B, 0x2B)
TITLE_IMAGES = (
    "systembuttonminimize", "systembuttonmaximize", "smallwindowmaxicon", "smallwindowcloseicon",
)
# The layer table's ground in each theme.
TABLE_GROUND = {"Black": (0x36, 0x36, 0x36), "White": (0xFF, 0xFF, 0xFF), "Blue": (0x22, 0x34, 0x54)}
TABLE_IMAGES = ("delete_2dvec", "layer_edit", "layer_lock", "layer_unlock", "layer_view", "layer_dis_view")
# A locked padlock has the accent's colour, which two themes share.
TINTED_IMAGES = ("delete_2dvec", "layer_edit", "layer_unlock", "layer_view", "layer_dis_view",
                 "Dropdownbutton", "dockwidgeticontop", "dockwidgeticonbuttom", "unselected")
LEAST_CONTRAST = 3.0

STOCK_CLASSES = (
    "QMainWindow", "QDialog", "QLabel", "QPushButton", "QToolButton", "QLineEdit", "QPlainTextEdit",
    "QAbstractSpinBox", "QComboBox", "QCheckBox", "QRadioButton", "QAbstractItemView", "QHeaderView",
    "QScrollBar", "QScrollArea", "QGroupBox", "QTabBar", "QTabWidget", "QProgressBar", "QSlider",
    "QMenu", "QMenuBar", "QToolTip", "QToolBar", "QStatusBar", "QSplitter",
)
PRIMARY_BUTTON = {
    "": {"background-color": "rgb(255, 200, 5)", "color": "#000000", "height": "30px", "width": "80px",
         "font-size": "14px", "border-radius": "2px"},
    ":hover": {"background-color": "rgb(255, 227, 126)"},
    ":pressed": {"background-color": "rgb(255, 227, 131)"},
}


class Png:
    """An 8-bit PNG with an alpha channel, decoded far enough to look at its pixels."""

    def __init__(self, data):
        chunks = list(png_chunks(data))
        self.width, self.height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", chunks[0][1])
        if colour != 6 or depth != 8 or interlace:
            raise ValueError("has no alpha channel of 8 bits")
        self.pixels = self._unfilter(
            zlib.decompress(b"".join(content for kind, content in chunks if kind == b"IDAT")))

    def _unfilter(self, raw):
        stride, pixels, previous = self.width * 4, [], bytearray(self.width * 4)
        for row in range(self.height):
            start = row * (stride + 1)
            kind, line = raw[start], bytearray(raw[start + 1:start + 1 + stride])
            for i in range(stride):
                left = line[i - 4] if i >= 4 else 0
                corner = previous[i - 4] if i >= 4 else 0
                line[i] = (line[i] + self._predict(kind, left, previous[i], corner)) & 0xFF
            pixels += [tuple(line[i:i + 4]) for i in range(0, stride, 4)]
            previous = line
        return pixels

    @staticmethod
    def _predict(kind, left, up, corner):
        if kind == 4:
            estimate = left + up - corner
            return min((left, up, corner), key=lambda value: abs(estimate - value))
        return (0, left, up, (left + up) // 2)[kind]

    def solid_colours(self):
        return [pixel[:3] for pixel in self.pixels if pixel[3] > 200]


def luminance(colour):
    parts = [value / 255 for value in colour]
    parts = [p / 12.92 if p <= 0.03928 else ((p + 0.055) / 1.055) ** 2.4 for p in parts]
    return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2]


def contrast(one, other):
    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


class Checker(ThemeFolder):
    """What every theme must have, and beyond that what makes this one the default."""

    def __init__(self, folder):
        super().__init__(folder)
        self.images = {}

    def run(self):
        self.check()
        for theme in THEMES:
            for name, edge in SHEET_IMAGES.items():
                self.check_picture("%s/qssimage/%s" % (theme, name), edge)
            for name in THREE_STATE_IMAGES:
                self.check_difference("%s/qssimage/%s" % (theme, name))
            for name in THEME_IMAGES:
                self.load("%s/qssimage/%s.png" % (theme, name))
            self.check_visible(theme)
        for stem in SHARED_IMAGES:
            self.load("qssimage/%s.png" % stem)
        self.check_ground()
        self.check_tints()
        self.check_movie("qssimage/waiting.gif")
        self.check_sheet_family()
        return self.problems

    # Pictures

    def load(self, path):
        """The decoded picture; None where it is missing or damaged, which check() has told."""
        if path not in self.images:
            try:
                self.images[path] = Png((self.folder / path).read_bytes())
            except (OSError, zlib.error):
                self.images[path] = None
            except ValueError as error:
                self.images[path] = None
                if "alpha" in str(error):
                    self.complain(path, str(error))
        return self.images[path]

    def check_ground(self):
        for path, image in self.images.items():
            if image and not image.solid_colours():
                self.complain(path, "is empty")
            if image and all(pixel[3] == 255 for pixel in image.pixels):
                self.complain(path, "has nothing transparent")

    def check_difference(self, stem):
        pictures = [self.load(stem + state + suffix + ".png")
                    for suffix in ("", "@2x") for state in ("",) + STATES]
        if None in pictures:
            self.complain(stem + ".png", "lacks a picture for the mouse inside or the disabled button")
            return
        if any(len({tuple(picture.pixels) for picture in three}) < 3 for three in (pictures[:3], pictures[3:])):
            self.complain(stem + ".png", "has a hover or disabled picture that looks like another one")

    def check_visible(self, theme):
        for names, ground in ((TITLE_IMAGES, TITLE_GROUND), (TABLE_IMAGES, TABLE_GROUND[theme])):
            for name in names:
                path = "%s/qssimage/%s.png" % (theme, name)
                image = self.images.get(path)
                colours = image.solid_colours() if image else []
                if colours and max(contrast(colour, ground) for colour in colours) < LEAST_CONTRAST:
                    self.complain(path, "does not stand out from the ground %s" % (ground,))

    def check_tints(self):
        for name in TINTED_IMAGES:
            pictures = [self.images.get("%s/qssimage/%s.png" % (theme, name)) for theme in THEMES]
            if all(pictures) and len({tuple(picture.pixels) for picture in pictures}) < len(THEMES):
                self.complain("*/qssimage/%s.png" % name, "has the same colours in two themes")

    def check_movie(self, path):
        try:
            data = (self.folder / path).read_bytes()
            frames, delays = gif_frames(data)
        except (OSError, IndexError):
            return  # As check() has told.
        if frames < 12:
            self.complain(path, "has %d frames, too few to look smooth" % frames)
        if any(not 2 <= delay <= 10 for delay in delays):
            self.complain(path, "shows a frame for less than 20 or more than 100 ms")
        if b"NETSCAPE2.0\x03\x01\x00\x00\x00" not in data:
            self.complain(path, "does not loop for ever")

    # Style sheets

    def check_sheet(self, path, themes):
        rules = super().check_sheet(path, themes)
        if rules:
            self.check_stock_classes(path, [selector for selector, _ in rules])
            self.check_primary_button(path, dict(rules))
            text = self.read_sheet(path)
            for name in re.findall(r"@[^@\s]*@?", text):
                if name != THEME_PLACEHOLDER:
                    self.complain(path, "has the unknown placeholder %s" % name)
            for target in re.findall(r"url\(\"?([^\")]*)\"?\)", text):
                if not target.startswith(THEME_PLACEHOLDER):
                    self.complain(path, "refers to %s outside the theme" % target)
        return rules

    def check_stock_classes(self, path, selectors):
        every = "\n".join(selectors)
        for name in STOCK_CLASSES:
            if not re.search(r"^%s\b" % name, every, flags=re.M):
                self.complain(path, "does not style " + name)

    def check_primary_button(self, path, rules):
        for state, wanted in PRIMARY_BUTTON.items():
            selector = 'QPushButton[vantorookbutton="true"]' + state
            for scope in ("", 'QDialog[isFramelessDialog="true"] '):
                found = rules.get(scope + selector, {})
                for name, value in wanted.items():
                    if found.get(name) != value:
                        self.complain(path, "gives %s%s %s %s, not %s" % (
                            scope, selector, name, found.get(name), value))

    def check_sheet_family(self):
        sheets = {theme: self.read_sheet("%s/themestyle.qss" % theme) or "" for theme in THEMES}
        if self.read_sheet("themestyle.qss") != sheets["Black"]:
            self.complain("themestyle.qss", "is not the Black theme's")
        selectors = {theme: [s for s, _ in parse_rules(text)] for theme, text in sheets.items()}
        for theme in THEMES[1:]:
            if selectors[theme] != selectors["Black"]:
                self.complain("%s/themestyle.qss" % theme, "has other selectors than the Black one")
        if len(set(sheets.values())) < len(THEMES):
            self.complain("*/themestyle.qss", "are the same in two themes")
        self.check_sources(sheets)

    def check_sources(self, sheets):
        render = self.folder / "source" / "render"
        if not render.exists():
            return  # An installed theme has no sources.
        with tempfile.TemporaryDirectory() as output:
            result = subprocess.run([sys.executable, str(render), "--only", "sheets", "--output", output],
                                    capture_output=True, text=True)
            if result.returncode != 0:
                self.complain("source/render", "fails: " + result.stderr.strip())
                return
            for theme in sheets:
                path = "%s/themestyle.qss" % theme
                if (pathlib.Path(output) / path).read_bytes() != (self.folder / path).read_bytes():
                    self.complain(path, "is not what source/render makes of the templates")


def replace_in(path, old, new):
    data = path.read_bytes()
    if old not in data:
        raise SystemExit("check_theme: the fault cannot be made, %s lacks %r" % (path, old))
    path.write_bytes(data.replace(old, new))


def cut(path, length):
    path.write_bytes(path.read_bytes()[:-length])


def opaque_png(edge):
    """A red square without an alpha channel."""
    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    pixels = zlib.compress((b"\0" + b"\xff\0\0" * edge) * edge)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", edge, edge, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", pixels) + chunk(b"IEND", b""))


# What is done to a copy of the theme, and a word of the report that must follow.
FAULTS = (
    ("is missing", lambda t: (t / "Blue/qssimage/layer_lock@2x.png").unlink()),
    ("px square", lambda t: shutil.copy(
        t / "White/qssimage/selected.png", t / "White/qssimage/selected@2x.png")),
    ("is damaged", lambda t: replace_in(
        t / "qssimage/ask.png", b"\x08\x06\x00\x00\x00", b"\x08\x02\x00\x00\x00")),
    ("is cut off", lambda t: cut(t / "Black/qssimage/unselected.png", 40)),
    ("is cut off", lambda t: cut(t / "qssimage/waiting.gif", 40)),
    ("is not a PNG", lambda t: shutil.copy(t / "qssimage/waiting.gif", t / "qssimage/warning.png")),
    ("has no alpha channel", lambda t: (t / "qssimage/ask.png").write_bytes(opaque_png(64))),
    ("lacks a picture", lambda t: (t / "Black/qssimage/layer_view_disabled.png").unlink()),
    ("same colours", lambda t: shutil.copy(
        t / "Black/qssimage/layer_edit.png", t / "White/qssimage/layer_edit.png")),
    ("looks like another", lambda t: shutil.copy(
        t / "Black/qssimage/layer_view.png", t / "Black/qssimage/layer_view_hover.png")),
    ("does not stand out", lambda t: shutil.copy(
        t / "White/qssimage/layer_edit.png", t / "White/qssimage/smallwindowcloseicon.png")
        or shutil.copy(t / "White/qssimage/layer_edit.png", t / "Black/qssimage/layer_edit.png")),
    ("property vantorcancelbbutton", lambda t: replace_in(
        t / "Blue/themestyle.qss", b"vantorcancelbbutton", b"vantorcancelbutton")),
    ("object name m_pContentHoderFrame", lambda t: replace_in(
        t / "Black/themestyle.qss", b"#m_pContentHoderFrame", b"#m_pContentHolderFrame")),
    ("background-color", lambda t: replace_in(
        t / "White/themestyle.qss", b"rgb(255, 227, 126)", b"rgb(255, 227, 127)")),
    ("braces", lambda t: replace_in(t / "themestyle.qss", b"QMenu {", b"QMenu ")),
    ("which does not exist", lambda t: replace_in(
        t / "themestyle.qss", b"systembuttonminimize.png", b"minimize.png")),
    ("is not the Black", lambda t: shutil.copy(t / "Blue/themestyle.qss", t / "themestyle.qss")),
    ("is not what source/render", lambda t: replace_in(
        t / "source/themestyle.qss.in", b"padding: 5px 8px", b"padding: 6px 8px")),
    ("loop", lambda t: replace_in(
        t / "qssimage/waiting.gif", b"NETSCAPE2.0\x03\x01\x00\x00", b"NETSCAPE2.0\x03\x01\x01\x00")),
    ("frames, too few", lambda t: (t / "qssimage/waiting.gif").write_bytes(
        first_frame((t / "qssimage/waiting.gif").read_bytes()))),
)


def first_frame(data):
    """The animation cut off after its first frame."""
    for position in range(13, len(data)):
        if data[position:position + 4] == b"\x00\x21\xf9\x04":
            try:
                shortened = data[:position + 1] + b"\x3b"
                if gif_frames(shortened)[0] == 1:
                    return shortened
            except (IndexError, struct.error):
                continue
    raise SystemExit("check_theme: cannot cut the animation")


def check_faults(folder):
    missed = 0
    for word, fault in FAULTS:
        with tempfile.TemporaryDirectory() as scratch:
            copy = pathlib.Path(scratch) / "theme"
            shutil.copytree(folder, copy)
            fault(copy)
            if not any(word in problem for problem in Checker(copy).run()):
                print("not reported: " + word)
                missed += 1
    return missed


def main():
    arguments = sys.argv[1:]
    faults = "--faults" in arguments
    if faults:
        arguments.remove("--faults")
    if len(arguments) != 1 or not pathlib.Path(arguments[0]).is_dir():
        sys.exit(__doc__)
    folder = pathlib.Path(arguments[0])
    problems = Checker(folder).run()
    for problem in problems:
        print(problem)
    if problems or (faults and check_faults(folder)):
        sys.exit(1)


if __name__ == "__main__":
    main()
