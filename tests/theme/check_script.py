#!/usr/bin/env python3
"""check_script.py ROOT: runs scripts/check-theme as a host does, on the default theme and on broken copies of
it, and fails unless each fault, and nothing but the fault, is listed.
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile


def cut(path, length):
    path.write_bytes(path.read_bytes()[:-length])


def flip(path, position):
    data = bytearray(path.read_bytes())
    data[position] ^= 0xFF
    path.write_bytes(data)


def replace(path, old, new):
    text = path.read_text(encoding="utf-8")
    if old not in text:
        sys.exit("check_script: the fault cannot be made, %s lacks %s" % (path, old))
    path.write_text(text.replace(old, new), encoding="utf-8")


# What is done to a copy of the theme, and all that is to be listed.
FAULTS = (
    (lambda t: (t / "Blue/qssimage/layer_lock.png").unlink(),
     ["Blue/qssimage/layer_lock.png is missing"]),
    (lambda t: (t / "Blue/qssimage/movebutton@2x.png").unlink(),
     ["Blue/qssimage/movebutton@2x.png is missing"]),
    (lambda t: (t / "White/qssimage/selected.png").rename(t / "White/qssimage/Selected.png"),
     ["White/qssimage/selected.png is missing; Selected.png is another name",
      "White/themestyle.qss refers to @theme@qssimage/selected.png, which does not exist in White",
      "themestyle.qss refers to @theme@qssimage/selected.png, which does not exist in White"]),
    (lambda t: cut(t / "qssimage/ask.png", 30), ["qssimage/ask.png is cut off"]),
    (lambda t: (t / "qssimage/ask.png").write_bytes(b""), ["qssimage/ask.png is not a PNG"]),
    (lambda t: flip(t / "qssimage/ask.png", 100), ["qssimage/ask.png is damaged"]),
    (lambda t: cut(t / "qssimage/waiting.gif", 100), ["qssimage/waiting.gif is cut off"]),
    (lambda t: shutil.copy(t / "Black/qssimage/selected@2x.png", t / "Black/qssimage/selected.png"),
     ["Black/qssimage/selected.png is 32x32, not 16 px square"]),
    (lambda t: shutil.copy(t / "qssimage/ask.png", t / "qssimage/ask@2x.png"),
     ["qssimage/ask@2x.png is 64x64, not 128 px square"]),
    (lambda t: replace(t / "Black/themestyle.qss", 'QLabel[vantorotitlecontent="true"]', "QLabel"),
     ["Black/themestyle.qss never styles the property vantorotitlecontent"]),
    (lambda t: replace(t / "themestyle.qss", 'QLabel[vantorotitlecontent="true"]', "QLabel[vantorotitlecontent]"),
     []),
    (lambda t: replace(t / "themestyle.qss", "#qt_msgbox_label", "#qt_msgbox_labels"),
     ["themestyle.qss never styles the object name qt_msgbox_label"]),
    (lambda t: (t / "themestyle.qss").unlink(), ["themestyle.qss is missing"]),
    (lambda t: (t / "White/themestyle.qss").unlink(), []),
    (lambda t: replace(t / "Blue/themestyle.qss", "@theme@qssimage/selected.png", "selected.png"),
     ["Blue/themestyle.qss refers to selected.png, which Qt looks for in the working directory"]),
    (lambda t: [path.unlink() for path in t.glob("*/qssimage/*_hover*")],
     ["%s/qssimage/%s_hover%s.png is missing" % (theme, name, suffix)
      for theme in ("Black", "White", "Blue")
      for name in ("delete_2dvec", "layer_edit", "layer_lock", "layer_unlock", "layer_view", "layer_dis_view")
      for suffix in ("", "@2x")]),
    (lambda t: [path.unlink() for state in ("hover", "disabled") for path in t.glob("*/qssimage/*_%s*" % state)],
     []),
)


def run(script, *arguments):
    result = subprocess.run([str(script), *map(str, arguments)], stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, text=True, cwd="/")
    return result.returncode, result.stdout.splitlines(), result.stderr


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    root = pathlib.Path(sys.argv[1]).resolve()
    script, problems = root / "scripts" / "check-theme", []

    def expect(what, found, wanted):
        if found != wanted:
            problems.append("%s: %s, not %s" % (what, found, wanted))

    expect("the default theme", run(script, root / "theme"), (0, [], ""))
    for number, (fault, wanted) in enumerate(FAULTS):
        with tempfile.TemporaryDirectory() as scratch:
            copy = pathlib.Path(scratch) / "theme"
            shutil.copytree(root / "theme", copy, ignore=shutil.ignore_patterns("source"))
            fault(copy)
            code, findings, error = run(script, copy)
            expect("fault %d" % number, (code, sorted(findings), error), (1 if wanted else 0, sorted(wanted), ""))
    with tempfile.TemporaryDirectory() as scratch:
        copy = pathlib.Path(scratch) / "theme"
        shutil.copytree(root / "theme", copy)
        shutil.rmtree(copy / "White")
        expect("one theme of three", run(script, copy, "--theme", "Black", "--theme", "Blue"), (0, [], ""))
        expect("three themes of two", run(script, copy)[0], 1)
        expect("a file", run(script, copy / "themestyle.qss")[0], 2)
        expect("nothing", run(script)[0], 2)
    for problem in problems:
        print(problem)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
