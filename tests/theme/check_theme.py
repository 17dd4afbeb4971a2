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

THEMES = ("Black", "White", "Blue")

# Picture: edge in px.
THEME_IMAGES = {
    "systembuttonminimize": 16, "systembuttonmaximize": 16, "smallwindowmaxicon": 16,
    "smallwindowcloseicon": 16, "Dropdownbutton": 20, "movebutton": 13, "dockwidgeticontop": 16,
    "dockwidgeticonbuttom": 16, "delete_2dvec": 20, "layer_edit": 20, "layer_lock": 20,
    "layer_unlock": 20, "layer_view": 20, "layer_dis_view": 20, "selected": 16, "unselected": 16,
}
THREE_STATE_IMAGES = (
    "delete_2dvec", "layer_edit", "layer_lock", "layer_unlock", "layer_view", "layer_dis_view",
)
SHARED_IMAGES = {"success": 64, "ask": 64, "warning": 64}

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

PROPERTIES = (
    "isFramelessDialog", "isFramelessDialogTitleBar", "isBackgroundSeparator", "isTitleBar",
    "isForeground", "isTitleBarTitle", "isTitleBarLogoButton", "isTitleBarMinButton",
    "isTitleBarMaxButton", "isTitleBarRestoreButton", "isTitleBarCloseButton", "vantorookbutton",
    "vantorcancelbbutton", "transparentbackgroundwidget", "transparentbackgroundbutton",
    "vantorotitlecontent", "centercontentgrayframe", "framehoderbackground", "CollGrpBxHide",
)
OBJECT_NAMES = (
    "zrqfctitleLabel", "Messageboxtitlelabel", "globa_pMessageBox", "qt_msgbox_label",
    "qt_msgboxex_icon_label", "qt_msgbox_buttonbox", "qt_msgbox_informativelabel",
    "filedialogbottomlabel", "processdialogtitlelabel", "m_pContentHoderFrame",
    "m_pCentreContentWidget", "collapseButton", "pLineStyleCombobox", "pLineWidthCombobox",
    "pObjectLineTypeboBox", "pObjectLineWidthboBox",
)
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
        if data[:8] != b"\x89PNG\r\n\x1a\n":
            raise ValueError("is not a PNG")
        self.width, self.height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", data[16:29])
        if colour != 6 or depth != 8 or interlace:
            raise ValueError("has no alpha channel of 8 bits")
        self.pixels = self._unfilter(zlib.decompress(self._image_data(data)))

    @staticmethod
    def _image_data(data):
        position, parts = 8, []
        while position < len(data):
            length, kind = struct.unpack(">I4s", data[position:position + 8])
            if kind == b"IDAT":
                parts.append(data[position + 8:position + 8 + length])
            position += length + 12
        return b"".join(parts)

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


class Checker:
    def __init__(self, folder):
        self.folder = folder
        self.problems = []
        self.images = {}

    def complain(self, path, text):
        self.problems.append("%s %s" % (path, text))

    def run(self):
        for theme in THEMES:
            for name, edge in THEME_IMAGES.items():
                self.check_pair("%s/qssimage/%s" % (theme, name), edge)
            for name in THREE_STATE_IMAGES:
                self.check_states("%s/qssimage/%s" % (theme, name), THEME_IMAGES[name])
            self.check_visible(theme)
            self.check_sheet("%s/themestyle.qss" % theme, theme)
        for name, edge in SHARED_IMAGES.items():
            self.check_pair("qssimage/" + name, edge)
        self.check_tints()
        self.check_gif("qssimage/waiting.gif")
        self.check_sheet("themestyle.qss", "Black")
        self.check_sheet_family()
        return self.problems

    # Pictures

    def load(self, path):
        try:
            self.images[path] = Png((self.folder / path).read_bytes())
        except OSError:
            self.complain(path, "is missing")
        except (ValueError, IndexError, struct.error, zlib.error) as error:
            self.complain(path, str(error) or "is damaged")
        return self.images.get(path)

    def check_pair(self, stem, edge):
        for suffix, scale in (("", 1), ("@2x", 2)):
            image = self.load(stem + suffix + ".png")
            if not image:
                continue
            size = (image.width, image.height)
            if size != (edge * scale, edge * scale):
                self.complain(stem + suffix + ".png", "is %dx%d, not %d px square" % (*size, edge * scale))
            if not image.solid_colours():
                self.complain(stem + suffix + ".png", "is empty")
            if all(pixel[3] == 255 for pixel in image.pixels):
                self.complain(stem + suffix + ".png", "has nothing transparent")

    def check_states(self, stem, edge):
        for state in ("_hover", "_disabled"):
            self.check_pair(stem + state, edge)
        pictures = [self.images.get(stem + state + ".png") for state in ("", "_hover", "_disabled")]
        if all(pictures) and len({tuple(picture.pixels) for picture in pictures}) < 3:
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

    def check_gif(self, path):
        try:
            data = (self.folder / path).read_bytes()
        except OSError:
            self.complain(path, "is missing")
            return
        if data[:6] != b"GIF89a":
            self.complain(path, "is not a GIF with animation")
            return
        if struct.unpack("<HH", data[6:10]) != (102, 102):
            self.complain(path, "is not 102x102")
        try:
            frames, delays = gif_frames(data)
        except IndexError:
            self.complain(path, "is damaged")
            return
        if frames < 12:
            self.complain(path, "has %d frames, too few to look smooth" % frames)
        if any(not 2 <= delay <= 10 for delay in delays):
            self.complain(path, "shows a frame for less than 20 or more than 100 ms")
        if b"NETSCAPE2.0\x03\x01\x00\x00\x00" not in data:
            self.complain(path, "does not loop for ever")

    # Style sheets

    def read_sheet(self, path):
        try:
            text = (self.folder / path).read_text(encoding="utf-8")
        except OSError:
            self.complain(path, "is missing")
            return ""
        return re.sub(r"/\*.*?\*/", "", text, flags=re.S)

    def check_sheet(self, path, theme):
        text = self.read_sheet(path)
        if not text:
            return
        if re.sub(r"[^{}]", "", text) != "{}" * text.count("{"):
            self.complain(path, "has braces that do not match")
            return
        rules = parse_rules(text)
        self.check_selectors(path, [selector for selector, _ in rules])
        for name in re.findall(r"@[^@\s]*@?", text):
            if name != "@theme@":
                self.complain(path, "has the unknown placeholder %s" % name)
        for target in re.findall(r"url\(\"?([^\")]*)\"?\)", text):
            if not target.startswith("@theme@") or not (
                    self.folder / theme / target[len("@theme@"):]).is_file():
                self.complain(path, "refers to %s, which does not exist" % target)
        self.check_primary_button(path, dict(rules))

    def check_selectors(self, path, selectors):
        every = "\n".join(selectors)
        for name in PROPERTIES:
            if '[%s="true"]' % name not in every:
                self.complain(path, "does not select on the property " + name)
        for name in OBJECT_NAMES:
            if not re.search(r"#%s\b" % name, every):
                self.complain(path, "does not select on the object name " + name)
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
        sheets = {theme: self.read_sheet("%s/themestyle.qss" % theme) for theme in THEMES}
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


def parse_rules(text):
    """One (selector, declarations) for each selector, in the order of the sheet."""
    rules = []
    for selectors, body in re.findall(r"([^{}]+)\{([^{}]*)\}", text):
        declarations = {}
        for declaration in body.split(";"):
            name, colon, value = declaration.partition(":")
            if colon:
                declarations[name.strip()] = value.strip()
        rules += [(" ".join(selector.split()), declarations) for selector in selectors.split(",")]
    return rules


def gif_frames(data):
    """The number of frames and the delay of each in hundredths of a second."""
    def colour_table(flags):
        return 3 << ((flags & 7) + 1) if flags & 0x80 else 0

    def skip_blocks(position):
        while data[position]:
            position += data[position] + 1
        return position + 1

    position, frames, delays = 13 + colour_table(data[10]), 0, []
    while data[position] != 0x3B:
        if data[position] == 0x21:
            if data[position + 1] == 0xF9:
                delays.append(struct.unpack("<H", data[position + 4:position + 6])[0])
            position = skip_blocks(position + 2)
        else:
            frames += 1
            position = skip_blocks(position + 10 + colour_table(data[position + 9]) + 1)
    return frames, delays


def replace_in(path, old, new):
    data = path.read_bytes()
    if old not in data:
        raise SystemExit("check_theme: the fault cannot be made, %s lacks %r" % (path, old))
    path.write_bytes(data.replace(old, new))


# What is done to a copy of the theme, and a word of the report that must follow.
FAULTS = (
    ("is missing", lambda t: (t / "Blue/qssimage/layer_lock@2x.png").unlink()),
    ("px square", lambda t: shutil.copy(
        t / "White/qssimage/selected.png", t / "White/qssimage/selected@2x.png")),
    ("has no alpha channel", lambda t: replace_in(
        t / "qssimage/ask.png", b"\x08\x06\x00\x00\x00", b"\x08\x02\x00\x00\x00")),
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
