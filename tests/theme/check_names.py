#!/usr/bin/env python3
"""check_names.py ROOT: compares the lists in theme/source/themefiles.py, by which themes are checked, with what the
sources of the library do: every property, object name and picture of theirs is listed, and nothing else is; and
theme/README.md tells of each.
"""

import pathlib
import re
import sys

sys.dont_write_bytecode = True

# Calls whose name is a parameter of the function around them: the callers write the name.
PASSED_ON = {
    "line->setProperty(propertyName.toUtf8().constData()": r"create\w+Line\(",
    "box->setProperty(question.propertyName": r"The host names it.",
    "box->setObjectName(objectName": r"createLine(?:Style|Width)Box\(",
    "object->setObjectName(QLatin1String(name)": r"\bnamed\(new ",
}
# Functions of the sources that take the name of a picture.
PICTURE_CALLS = r"(?:\bthemeIcon|\bthemeImage)\((?:QStringLiteral\()?([^;]*?)\)"


def names_set(text, place):
    """Every property and object name that a source sets, and what cannot be followed."""
    constants = dict(re.findall(r"\bchar (\w+)\[\] = \"(\w+)\"", text))
    # A property's name may be handed to whatever sets it.
    names = {value for name, value in constants.items() if name.endswith("Property")}
    unknown = []
    for call, argument in re.findall(
            r"((?:\w+(?:->|\.|\[[^]]*\]->|\(\)->))*set(?:Property|ObjectName)\(((?:[^(),]|\([^()]*\))+))", text):
        literal = re.search(r"\"(\w+)\"", argument)
        constant = re.search(r"\b(%s)\b" % "|".join(constants), argument) if constants else None
        if literal:
            names.add(literal.group(1))
        elif constant:
            names.add(constants[constant.group(1)])
        elif not any(call.endswith(known) for known in PASSED_ON):
            unknown.append("%s: no name can be read in %s)" % (place, call))
    for calls in PASSED_ON.values():
        for arguments in re.findall(calls + r"([^;{]*);", text):
            names.update(re.findall(r"\"(\w+)\"", arguments))
    # By these the library keeps its own notes.
    return {name for name in names if not name.startswith("_lm_")}, unknown


def pictures_loaded(text):
    names = set(re.findall(r"qssimage/(\w+)", text))
    for argument in re.findall(PICTURE_CALLS, text):
        names.update(name for name in re.findall(r"\"(\w+?)(?:\.png)?\"", argument))
    return names


def compare(kind, listed, found):
    for name in sorted(found - listed):
        yield "the library has the %s %s, which themefiles.py does not list" % (kind, name)
    for name in sorted(listed - found):
        yield "themefiles.py lists the %s %s, which the library does not have" % (kind, name)


def check(sources, themefiles, readme):
    names, pictures, problems = set(), set(), []
    for place, text in sources.items():
        found, unknown = names_set(text, place)
        names |= found
        problems += unknown
        pictures |= pictures_loaded(text)
    styled = set(themefiles.PROPERTIES + themefiles.OBJECT_NAMES)
    problems += compare("name", styled | set(themefiles.UNSTYLED_NAMES), names)
    problems += compare(
        "picture", set(themefiles.THEME_IMAGES) | set(themefiles.SHARED_IMAGES) | {"waiting"}, pictures)
    for name in sorted(styled | set(themefiles.THEME_IMAGES) | set(themefiles.SHARED_IMAGES)):
        if "`%s`" % name not in readme:
            problems.append("theme/README.md does not tell of %s" % name)
    return problems


# What is put into a source, and a word of the report that must follow.
FAULTS = (
    ("wanderingProperty", 'void f(QWidget *w) { w->setProperty("wanderingProperty", true); }'),
    ("wanderingName", 'void f(QWidget *w) { w->setObjectName(QStringLiteral("wanderingName")); }'),
    ("no name can be read", "void f(QWidget *w, const char *n) { w->setProperty(n, true); }"),
    ("wanderingPicture", 'QIcon f() { return themeIcon("wanderingPicture"); }'),
)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    root = pathlib.Path(sys.argv[1])
    sys.path.insert(0, str(root / "theme" / "source"))
    import themefiles

    readme = (root / "theme" / "README.md").read_text(encoding="utf-8")
    sources = {path.name: re.sub(r"//.*", "", path.read_text(encoding="utf-8"))
               for path in sorted((root / "lmwidgets").iterdir()) if path.suffix in (".cpp", ".h")}
    problems = check(sources, themefiles, readme)
    for word, fault in FAULTS:
        spoiled = dict(sources, fault=fault)
        if not any(word in problem for problem in check(spoiled, themefiles, readme)):
            problems.append("not reported: " + word)
    for missing in ("isTitleBar", "movebutton", "processdialogtitlelabel"):
        spoiled = {name: text.replace('"%s"' % missing, '"x"').replace("qssimage/" + missing, "x")
                   for name, text in sources.items()}
        if not any(missing in problem for problem in check(spoiled, themefiles, readme)):
            problems.append("not reported: " + missing)
    for problem in problems:
        print(problem)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
