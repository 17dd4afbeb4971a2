"""The code in the pages: how a block becomes something that is compiled.

A block is what stands between ```cpp and ```. An HTML comment right above it, which no reader of the page
sees, says what it is:

    <!-- snippet -->                        classes or functions, compiled as they are
    <!-- snippet: void f(QWidget *w) -->    statements, which become the body of that function
    <!-- host
    int tileCount();
    -->                                     above either of them or on its own: what the host has

A block with a main() needs no comment: it is a program of its own. The blocks of one page make one file, in
their order, in a namespace that is called like the page; the files are compiled by the build, and
tst_howtos.cpp includes some of them and calls what is in them. The code in the class comments of the headers is
compiled too, with what classhost.h says that a host has.
"""

import pathlib
import re
import sys

FENCE = re.compile(r"^( *)```(\S*)[^\n]*\n(.*?)^\1```[ \t]*$", re.S | re.M)
COMMENT = re.compile(r"<!--(.*?)-->", re.S)
LANGUAGES = ("cpp", "cmake", "sh", "qss", "ini", "text")


class Block:
    def __init__(self, language, text, line, comments):
        self.language, self.text, self.line, self.comments = language, text, line, comments


def blocks(text):
    """The fenced blocks of a page, each with the HTML comments between it and the text above it."""
    end = 0
    for match in FENCE.finditer(text):
        between = text[end:match.start()]
        trailing = re.search(r"(?:\s*<!--(?:(?!-->).)*-->)*\s*\Z", between, re.S).group(0)
        comments = [comment.strip() for comment in COMMENT.findall(trailing)]
        content = re.sub("^" + match.group(1), "", match.group(3), flags=re.M)
        yield Block(match.group(2), content, text.count("\n", 0, match.start()) + 2, comments)
        end = match.end()


class Page:
    """A page, the code in it and what is wrong with it."""

    def __init__(self, path, root):
        self.name = path.relative_to(root).as_posix()
        stem = path.stem if path.stem != "README" else "_".join((path.relative_to(root).parent.parts + ("readme",)))
        self.identifier = re.sub(r"\W", "_", stem)
        self.text = path.read_text(encoding="utf-8")
        self.blocks = list(blocks(self.text))
        self.problems, self.programs, self.parts, self.includes = [], [], [], []
        for block in self.blocks:
            if block.language == "cpp":
                self.add(block)
            elif block.language and block.language not in LANGUAGES:
                self.complain(block, "is in an unknown language: " + block.language)

    def complain(self, block, text):
        self.problems.append("%s:%d: the block %s" % (self.name, block.line, text))

    def add(self, block):
        place = '#line %d "%s"\n' % (block.line, self.name)
        if re.search(r"^int main\(", block.text, re.M):
            self.programs.append(place + block.text)
            return
        wrapped = False
        for comment in block.comments:
            kind, _, rest = comment.partition("\n") if comment.startswith("host") else comment.partition(":")
            if kind == "host":
                self.parts.append(self.hoist(rest))
            elif kind.strip() == "snippet":
                wrapped = True
                body = place + self.hoist(block.text)
                self.parts.append("%s\n{\n%s}\n" % (rest.strip(), body) if rest.strip() else body)
            else:
                self.complain(block, "has an unknown comment above it: " + comment.split("\n")[0])
        if not wrapped:
            self.complain(block, "does not say how it is compiled; see tests/docs/snippets.py")

    def hoist(self, text):
        """Takes the includes out, which must not stand in a namespace."""
        self.includes += re.findall(r"^#include .*$", text, re.M)
        return re.sub(r"^#include .*$", "", text, flags=re.M)

    def source(self):
        lines = ["// Made of %s by tests/docs/snippets.py." % self.name, "#include <lmwidgets/lmwidgets.h>",
                 "#include <QtWidgets>"]
        lines += dict.fromkeys(self.includes)
        return "\n".join(lines) + "\n\nnamespace %s {\n\n%s\n} // namespace %s\n" % (
            self.identifier, "\n".join(self.parts), self.identifier)


class ClassComments:
    """The code between @code and @endcode in the headers: one file for all. Statements become the body of a
    function of the class Host, which has what they name; classes stand in a namespace of their own."""

    CODE = re.compile(r"^ *\* @code\n(.*?)^ *\* @endcode$", re.S | re.M)
    # In its header the name is a pointer elsewhere, and an object in this one.
    PARAMETERS = {"customlayertoolbutton": "const Layer &layer", "roundcheckbox": "Layer *layer"}

    def __init__(self, headers, root):
        self.parts = []
        for header in headers:
            text = header.read_text(encoding="utf-8")
            for match in self.CODE.finditer(text):
                code = re.sub(r"^ *\* ?", "", match.group(1), flags=re.M)
                line = text.count("\n", 0, match.start(1)) + 1
                self.add(header.stem, '#line %d "%s"\n%s' % (line, header.relative_to(root).as_posix(), code))

    def add(self, name, code):
        place = "%s_%d" % (name, len(self.parts))
        if re.search(r"^class ", code, re.M):
            self.parts.append("namespace %s {\n%s} // namespace %s\n" % (place, code, place))
        else:
            parameters = self.PARAMETERS.get(name, "")
            self.parts.append("struct %s : Host\n{\nvoid run(%s)\n{\n%s}\n};\n" % (place, parameters, code))

    def source(self):
        return '#include "classhost.h"\n\nnamespace class_comments {\n\n%s\n} // namespace class_comments\n' % (
            "\n".join(self.parts))


def write(path, text):
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def main():
    """snippets.py ROOT FOLDER PAGE...: writes the files of the pages and prints the names of those to compile.
    snippets.py ROOT FILE HEADER...: writes the file of the class comments."""
    root, output = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    paths = [pathlib.Path(argument) for argument in sys.argv[3:]]
    if output.suffix == ".cpp":
        output.write_text(ClassComments(paths, root).source(), encoding="utf-8")
        return
    output.mkdir(parents=True, exist_ok=True)
    sources = []
    for path in paths:
        page = Page(path, root)
        if page.parts:
            write(output / (page.identifier + ".inc"), page.source())
            name = page.identifier + ".cpp"
            write(output / name, '#include "%s.inc"\n' % page.identifier)
            sources.append(name)
        for number, program in enumerate(page.programs):
            name = "%s_program%d.cpp" % (page.identifier, number)
            write(output / name, program)
            sources.append(name)
    print(";".join(str(output / name) for name in sources), end="")


if __name__ == "__main__":
    main()
