#!/usr/bin/env python3
"""check_docs.py BUILD SCRATCH HEADER...: makes the documentation in the build folder, which fails on any
warning of doxygen's, and looks at the result: every public class has its page, no link leads nowhere, and
the file for Assistant and Qt Creator knows every class. Then spoils copies and fails unless that is noticed.
"""

import html.parser
import pathlib
import re
import sqlite3
import subprocess
import sys
import urllib.parse

# There is nothing to see of these.
WITHOUT_PICTURE = ("FramelessHelper", "TalvoBasicUtil", "TalvoDialogBase", "TalvoStyleManager")

CLASS = re.compile(r"@class (\w+) (\w+\.h) <lmwidgets/\2>")


class Links(html.parser.HTMLParser):
    """What a page refers to, and the places in it that others can refer to."""

    def __init__(self, text):
        super().__init__()
        self.targets, self.anchors = [], set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("href", "src", "data") and value:
                self.targets.append(value)
            elif name in ("id", "name") and value:
                self.anchors.add(value)


def dead_links(folder):
    pages = {page.name: Links(page.read_text(encoding="utf-8")) for page in folder.glob("*.html")}
    for name, page in sorted(pages.items()):
        for target in page.targets:
            parts = urllib.parse.urlsplit(target)
            if parts.scheme or parts.netloc:
                continue
            path = urllib.parse.unquote(parts.path)
            if path and not (folder / path).exists():
                yield "%s refers to %s, which does not exist" % (name, target)
            elif parts.fragment and (path or name) in pages:
                if urllib.parse.unquote(parts.fragment) not in pages[path or name].anchors:
                    yield "%s refers to %s, and there is no such place" % (name, target)


def public_classes(headers):
    """Name and header of every class that a host uses."""
    for header in headers:
        text = header.read_text(encoding="utf-8")
        found = CLASS.findall(text)
        for name, file in found:
            if file != header.name:
                sys.exit("%s says that it is %s" % (header, file))
            yield name, header
        if not found and "@file" not in text and header.name != "lmwidgets_global.h":
            sys.exit("%s has neither a class with a comment nor one of its own" % header)


def check_result(folder, headers):
    problems = list(dead_links(folder / "html"))
    if not (folder / "lmwidgets.qch").exists():
        return problems + ["there is no lmwidgets.qch: apt-get install qhelpgenerator-qt5"]
    with sqlite3.connect("file:%s?mode=ro" % (folder / "lmwidgets.qch"), uri=True) as help_file:
        known = {row[0] for row in help_file.execute("select Name from IndexTable")}
    for name, header in public_classes(headers):
        pages = list((folder / "html").glob("class*%s.html" % name.replace("_", "__")))
        pages = [page for page in pages if re.search(r"class(LM_1_1Widgets_1_1)?%s\.html" % name, page.name)]
        if len(pages) != 1:
            problems.append("%s has no page" % name)
            continue
        text = pages[0].read_text(encoding="utf-8")
        if "lmwidgets/%s" % header.name not in text:
            problems.append("the page of %s does not say which header to include" % name)
        picture = header.stem + ".png"
        if ('<img src="%s"' % picture in text) != (name not in WITHOUT_PICTURE):
            problems.append("the page of %s has%s a picture" % (name, "" if name in WITHOUT_PICTURE else " not"))
        if not known & {name, "LM::Widgets::" + name}:
            problems.append("lmwidgets.qch does not know %s" % name)
    return problems


def make(build):
    return subprocess.run(["cmake", "--build", build, "--target", "docs"],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def check_faults(build, scratch, headers):
    """Each of these must be noticed: a function without a comment, a link to nowhere."""
    spoiled = scratch / "framelessdialog.h"
    original = next(header for header in headers if header.name == spoiled.name)
    doxyfile = (build / "docs" / "Doxyfile").read_text(encoding="utf-8")
    doxyfile = doxyfile.replace(str(original), str(spoiled)).replace(str(build / "docs"), str(scratch))
    text = original.read_text(encoding="utf-8")
    fault = text.replace("\nprotected:\n", "\n    void wander(int distance);\n\nprotected:\n", 1)
    if fault == text:
        sys.exit("check_docs: the fault cannot be made")
    (scratch / "Doxyfile").write_text(doxyfile, encoding="utf-8")
    script = pathlib.Path(__file__).resolve().parents[2] / "docs" / "MakeDocs.cmake"
    for content, noticed in ((text, False), (fault, True)):
        spoiled.write_text(content, encoding="utf-8")
        result = subprocess.run(["cmake", "-DDIRECTORY=%s" % scratch, "-DDOXYGEN=doxygen", "-P", script],
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if (result.returncode != 0 and "wander" in result.stdout) != noticed:
            yield "a function without a comment is%s noticed" % ("" if not noticed else " not")
    page = scratch / "html" / "index.html"
    page.parent.mkdir(parents=True, exist_ok=True)
    page.write_text('<a href="nowhere.html">a</a><a href="#there">b</a><a id="here" href="#here">c</a>')
    for other in page.parent.glob("*.html"):
        if other != page:
            other.unlink()
    if len(list(dead_links(page.parent))) != 2:
        yield "links to nowhere are not noticed"


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    build, scratch = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    headers = [pathlib.Path(argument) for argument in sys.argv[3:]]
    result = make(build)
    if result.returncode != 0:
        print(result.stdout)
        sys.exit("Is something missing? apt-get install doxygen qhelpgenerator-qt5")
    scratch.mkdir(parents=True, exist_ok=True)
    problems = check_result(build / "docs", headers) + list(check_faults(build, scratch, headers))
    for problem in problems:
        print(problem)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
