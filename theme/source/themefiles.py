"""What the widgets ask of a theme, in one place, and whether a theme has it: the lists behind the script that
renders the default theme, behind its test, and behind scripts/check-theme, which looks at a host's own theme.
"""

import pathlib
import re
import struct
import zlib

THEMES = ("Black", "White", "Blue")

# Name of a picture: its edge in px. Each theme has these under qssimage/, and an @2x of double size.
THEME_IMAGES = {
    "systembuttonmaximize": 16,
    "smallwindowmaxicon": 16,
    "smallwindowcloseicon": 16,
    "Dropdownbutton": 20,
    "movebutton": 13,
    "dockwidgeticontop": 16,
    "dockwidgeticonbuttom": 16,
    "delete_2dvec": 20,
    "layer_edit": 20,
    "layer_lock": 20,
    "layer_unlock": 20,
    "layer_view": 20,
    "layer_dis_view": 20,
    "selected": 16,
    "unselected": 16,
}
# No widget loads this one; the default style sheets show it on the minimise button.
SHEET_IMAGES = {"systembuttonminimize": 16}
# For buttons with three pictures these come with _hover and _disabled as well. A theme may do without.
THREE_STATE_IMAGES = (
    "delete_2dvec", "layer_edit", "layer_lock", "layer_unlock", "layer_view", "layer_dis_view",
)
STATES = ("_hover", "_disabled")
# Shared by all themes, in the qssimage/ beside their folders.
SHARED_IMAGES = {"success": 64, "ask": 64, "warning": 64}
WAITING_EDGE = 102

# The dynamic properties, all of them true, and the object names that the widgets set for style sheets.
PROPERTIES = (
    "isFramelessDialog", "isFramelessDialogTitleBar", "isBackgroundSeparator", "isTitleBar",
    "isForeground", "isTitleBarTitle", "isTitleBarLogoButton", "isTitleBarMinButton",
    "isTitleBarMaxButton", "isTitleBarRestoreButton", "isTitleBarCloseButton", "vantorookbutton",
    "vantorcancelbbutton", "transparentbackgroundwidget", "transparentbackgroundbutton",
    "vantorotitlecontent", "centercontentgrayframe", "framehoderbackground", "CollGrpBxHide", "about",
)
OBJECT_NAMES = (
    "zrqfctitleLabel", "Messageboxtitlelabel", "globa_pMessageBox", "qt_msgbox_label",
    "qt_msgboxex_icon_label", "qt_msgbox_buttonbox", "qt_msgbox_informativelabel",
    "filedialogbottomlabel", "processdialogtitlelabel", "m_pContentHoderFrame",
    "m_pCentreContentWidget", "collapseButton", "pLineStyleCombobox", "pLineWidthCombobox",
    "pObjectLineTypeboBox", "pObjectLineWidthboBox",
)
# The widgets set these as well, for a host that looks a child up: no sheet has to select on them.
UNSTYLED_NAMES = (
    "TalvoDoubleInputDlg", "verticalLayout", "widget", "horizontalLayout", "label_2", "doubleSpinBox",
)

# Stands in a sheet for the path of the theme that is current; the host replaces it.
THEME_PLACEHOLDER = "@theme@"

# Bits of a pixel: colour type of a PNG to its channels.
PNG_CHANNELS = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}
PNG_PASSES = ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2))


def png_chunks(data):
    """The (kind, content) of each chunk; raises ValueError where the file is no PNG or is damaged."""
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError("is not a PNG")
    position, kind = 8, None
    while kind != b"IEND":
        if position + 12 > len(data):
            raise ValueError("is cut off")
        length, kind = struct.unpack(">I4s", data[position:position + 8])
        content = data[position + 8:position + 8 + length]
        checksum = data[position + 8 + length:position + 12 + length]
        if len(checksum) < 4:
            raise ValueError("is cut off")
        if struct.unpack(">I", checksum)[0] != zlib.crc32(kind + content):
            raise ValueError("is damaged")
        yield kind, content
        position += length + 12


def png_size(data):
    """Width and height of a PNG that is whole; raises ValueError otherwise."""
    chunks = list(png_chunks(data))
    if chunks[0][0] != b"IHDR" or len(chunks[0][1]) != 13:
        raise ValueError("is damaged")
    width, height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", chunks[0][1])
    if not width or not height or colour not in PNG_CHANNELS:
        raise ValueError("is damaged")
    try:
        pixels = zlib.decompress(b"".join(content for kind, content in chunks if kind == b"IDAT"))
    except zlib.error:
        raise ValueError("is damaged") from None
    wanted = 0
    for left, top, across, down in PNG_PASSES if interlace else ((0, 0, 1, 1),):
        columns, rows = -(-(width - left) // across), -(-(height - top) // down)
        if columns > 0 and rows > 0:
            wanted += rows * (1 + -(-columns * depth * PNG_CHANNELS[colour] // 8))
    if len(pixels) < wanted:
        raise ValueError("is cut off")
    return width, height


def gif_frames(data):
    """Number of frames and the delay of each in hundredths of a second; IndexError where it is cut off."""
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
                delays.append(data[position + 4] | data[position + 5] << 8)
            position = skip_blocks(position + 2)
        else:
            frames += 1
            position = skip_blocks(position + 10 + colour_table(data[position + 9]) + 1)
    return frames, delays


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


def selects_property(selectors, name):
    """Whether any selector holds for a widget that has the property @p name set to true."""
    wanted = r"""\[\s*%s\s*(?:[~|]?=\s*["']?true["']?\s*)?\]""" % re.escape(name)
    return any(re.search(wanted, selector) for selector in selectors)


def selects_object_name(selectors, name):
    return any(re.search(r"#%s(?![\w-])" % re.escape(name), selector) for selector in selectors)


class ThemeFolder:
    """Looks at the folder that a host puts beside its executable and collects what is wrong with it."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.problems = []

    def complain(self, path, text):
        self.problems.append("%s %s" % (path, text))

    def check(self, themes=THEMES):
        """Everything that the widgets rely on; returns the findings."""
        for theme in themes:
            for name, edge in THEME_IMAGES.items():
                self.check_picture("%s/qssimage/%s" % (theme, name), edge)
            for name in THREE_STATE_IMAGES:
                self.check_states("%s/qssimage/%s" % (theme, name), THEME_IMAGES[name])
            if (self.folder / theme / "themestyle.qss").exists():
                self.check_sheet("%s/themestyle.qss" % theme, (theme,))
        for name, edge in SHARED_IMAGES.items():
            self.check_picture("qssimage/" + name, edge)
        self.check_waiting("qssimage/waiting.gif")
        self.check_sheet("themestyle.qss", themes)
        return self.problems

    def read(self, path):
        """The content of a file; None, and a finding, where it cannot be read."""
        try:
            return (self.folder / path).read_bytes()
        except FileNotFoundError:
            self.complain(path, "is missing" + self.other_case(path))
        except OSError as error:
            self.complain(path, "cannot be read: %s" % error.strerror)
        return None

    def other_case(self, path):
        """Windows finds a file by a name in other letters, other systems do not."""
        target = self.folder / path
        if target.parent.is_dir():
            for entry in target.parent.iterdir():
                if entry.name.lower() == target.name.lower():
                    return "; %s is another name" % entry.name
        return ""

    def check_picture(self, stem, edge):
        for suffix, scale in (("", 1), ("@2x", 2)):
            path = stem + suffix + ".png"
            data = self.read(path)
            if data is None:
                continue
            try:
                size = png_size(data)
            except ValueError as error:
                self.complain(path, str(error))
                continue
            if size != (edge * scale, edge * scale):
                self.complain(path, "is %dx%d, not %d px square" % (*size, edge * scale))

    def check_states(self, stem, edge):
        """The pictures under the mouse and of the disabled button, where there is one of them."""
        names = [stem + state + suffix + ".png" for state in STATES for suffix in ("", "@2x")]
        if any((self.folder / name).exists() for name in names):
            for state in STATES:
                self.check_picture(stem + state, edge)

    def check_waiting(self, path):
        data = self.read(path)
        if data is None:
            return
        if data[:6] not in (b"GIF87a", b"GIF89a"):
            self.complain(path, "is not a GIF")
            return
        try:
            frames, _ = gif_frames(data)
            size = struct.unpack("<HH", data[6:10])
        except (IndexError, struct.error):
            self.complain(path, "is cut off")
            return
        if size != (WAITING_EDGE, WAITING_EDGE):
            self.complain(path, "is %dx%d, not %d px square" % (*size, WAITING_EDGE))
        if frames < 2:
            self.complain(path, "does not move: it has %d frames" % frames)

    def read_sheet(self, path):
        """The text of a sheet without its comments; None, and a finding, where it cannot be read."""
        data = self.read(path)
        if data is None:
            return None
        try:
            text = data.decode("utf-8")
        except UnicodeDecodeError:
            self.complain(path, "is not UTF-8")
            return None
        return re.sub(r"/\*.*?\*/", "", text, flags=re.S)

    def check_sheet(self, path, themes):
        """The sheet at @p path, which is used with each of @p themes; returns its rules."""
        text = self.read_sheet(path)
        if text is None:
            return []
        if re.sub(r"[^{}]", "", text) != "{}" * text.count("{"):
            self.complain(path, "has braces that do not match")
            return []
        rules = parse_rules(text)
        selectors = [selector for selector, _ in rules]
        for name in PROPERTIES:
            if not selects_property(selectors, name):
                self.complain(path, "never styles the property " + name)
        for name in OBJECT_NAMES:
            if not selects_object_name(selectors, name):
                self.complain(path, "never styles the object name " + name)
        targets = re.findall(r"url\(\s*[\"']?([^\"')]*)[\"']?\s*\)", text)
        for target in dict.fromkeys(targets):
            for theme in themes:
                self.check_reference(path, target, theme)
        return rules

    def check_reference(self, path, target, theme):
        if target.startswith((":/", "qrc:")):
            return  # Compiled into the host.
        if target.startswith(THEME_PLACEHOLDER):
            file = self.folder / theme / target[len(THEME_PLACEHOLDER):]
        elif pathlib.PurePath(target).is_absolute():
            file = pathlib.Path(target)
        else:
            self.complain(path, "refers to %s, which Qt looks for in the working directory" % target)
            return
        if not file.is_file():
            self.complain(path, "refers to %s, which does not exist in %s" % (target, theme))
