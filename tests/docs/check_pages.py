#!/usr/bin/env python3
"""check_pages.py ROOT BUILD SCRATCH PAGE...: what the pages claim beyond the C++ in them, which the build
compiles. Each ```cmake block is configured, and built where it finds an installed library; each link between
pages, each picture and each path of the tree exists; every block says what it is; no page is left out.
"""

import pathlib
import re
import shutil
import subprocess
import sys

sys.dont_write_bytecode = True

import snippets  # noqa: E402

# What stands in a page like a path of the tree, wherever it stands.
TREE_PATH = re.compile(
    r"(?<![\w./-])((?:scripts|tests|docs|theme|cmake|gallery|examples|benchmarks|translations|designer|lmwidgets)"
    r"/[\w./@-]*[\w@-])(?![\w*{])")
# Named like a path of the tree, but meant for somewhere else.
ELSEWHERE = (
    "theme/qssimage/waiting.gif",
)
LINK = re.compile(r"!?\[[^]]*\]\(([^)\s]+)\)")
MAIN = "#include <lmwidgets/talvostylemanager.h>\n\nint main()\n{\n    return LM::Widgets::TalvoStyleManager::instance() ? 0 : 1;\n}\n"


def prose(page):
    """The page without its fenced blocks; a link in code is no link."""
    return snippets.FENCE.sub("", snippets.COMMENT.sub("", page.text))


def anchors(text):
    """The places of a page that a link can name, as forges make them of headings."""
    headings = re.findall(r"^#+ (.*)$", snippets.FENCE.sub("", text), re.M)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def check_links(page, root):
    folder = (root / page.name).parent
    for target in LINK.findall(prose(page)):
        if re.match(r"[a-z]+:", target):
            continue
        path, _, anchor = target.partition("#")
        file = folder / path if path else root / page.name
        if not file.exists():
            yield "%s: the link to %s leads nowhere" % (page.name, target)
        elif anchor and anchor not in anchors(file.read_text(encoding="utf-8")):
            yield "%s: there is no heading for the link to %s" % (page.name, target)


def check_paths(page, root, build):
    text = snippets.COMMENT.sub("", page.text)
    for path in sorted(set(TREE_PATH.findall(text))):
        if path in ELSEWHERE or re.match(r"lmwidgets/lmwidgets(_version|Config\w*)?\.", path):
            continue
        if not any((folder / path).exists() for folder in (root, (root / page.name).parent)):
            yield "%s: there is no %s" % (page.name, path)


class CMakeBlocks:
    """Configures the blocks, each as a project of its own, against a copy of the library that is installed."""

    def __init__(self, root, build, scratch):
        self.root, self.build, self.scratch = root, build, scratch
        self.prefix = scratch / "prefix"

    def run(self, *command):
        return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True)

    def install(self):
        shutil.rmtree(self.scratch, ignore_errors=True)
        self.scratch.mkdir(parents=True)
        result = self.run("cmake", "--install", self.build, "--prefix", self.prefix)
        if result.returncode != 0:
            sys.exit("check_pages: cannot install\n" + result.stdout)

    def project(self, block, main):
        lines = ["cmake_minimum_required(VERSION 3.16)", "project(host LANGUAGES CXX)"]
        if "add_executable(" not in block.text:
            lines.append("add_executable(host main.cpp)")
        if re.search(r"^project\(", block.text, re.M):
            lines = []
        text = "\n".join(lines) + "\n" + block.text
        # In a page that adds the library's sources they stand in the host's tree.
        folder = self.scratch / ("block%d" % block.line)
        folder.mkdir()
        (folder / "CMakeLists.txt").write_text(text, encoding="utf-8")
        (folder / "main.cpp").write_text(main, encoding="utf-8")
        if "add_subdirectory(lmwidgets)" in block.text:
            (folder / "lmwidgets").symlink_to(self.root)
        return folder

    def check(self, page):
        main = page.programs[0] if page.programs else MAIN
        for block in page.blocks:
            if block.language != "cmake":
                continue
            folder = self.project(block, main)
            launcher = ("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache",) if shutil.which("ccache") else ()
            steps = [("cmake", "-S", folder, "-B", folder / "build", "-G", "Ninja", *launcher,
                      "-DCMAKE_PREFIX_PATH=%s" % self.prefix, "-DCMAKE_INSTALL_PREFIX=%s" % (folder / "installed"))]
            if "find_package(lmwidgets" in block.text:
                steps.append(("cmake", "--build", folder / "build"))
                if "install(" in block.text:
                    steps.append(("cmake", "--install", folder / "build"))
            for step in steps:
                result = self.run(*step)
                if result.returncode != 0:
                    yield "%s:%d: %s fails\n%s" % (page.name, block.line, " ".join(map(str, step)), result.stdout)
                    break
            else:
                yield from self.check_theme(page, block, folder)
            shutil.rmtree(folder)

    @staticmethod
    def check_theme(page, block, folder):
        """Where a block says that the theme stands beside the executable, it does."""
        for place, condition in ((folder / "build", "lmwidgets_deploy_theme(host)"),
                                 (folder / "installed", "install(DIRECTORY")):
            if condition not in block.text or "find_package(lmwidgets" not in block.text:
                continue
            programs = [path for path in place.rglob("host*") if path.is_file() and path.stat().st_mode & 0o100]
            if not any((path.parent / "theme" / "Black" / "qssimage" / "selected.png").exists()
                       for path in programs):
                yield "%s:%d: there is no theme beside the executable in %s" % (page.name, block.line, place.name)


def check_faults(root, scratch):
    """Pages with a fault each; yields what is not noticed."""
    faults = (
        ("does not say how", "```cpp\nint x;\n```\n"),
        ("unknown comment", "<!-- snipet -->\n```cpp\nint x;\n```\n"),
        ("unknown language", "```pascal\nbegin\n```\n"),
        ("leads nowhere", "[a](nowhere.md)\n"),
        ("no heading", "# Here\n\n[a](#there)\n"),
        ("there is no scripts/nothing", "Run `scripts/nothing`.\n"),
    )
    for word, text in faults:
        path = scratch / "docs" / "fault.md"
        path.parent.mkdir(exist_ok=True)
        path.write_text(text, encoding="utf-8")
        page = snippets.Page(path, scratch)
        found = page.problems + list(check_links(page, scratch)) + list(check_paths(page, root, root))
        if not any(word in problem for problem in found):
            yield "not noticed: " + word


def main():
    if len(sys.argv) < 5:
        sys.exit(__doc__)
    root, build, scratch = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    pages = [snippets.Page(pathlib.Path(argument), root) for argument in sys.argv[4:]]
    problems = []
    names = {page.name for page in pages}
    listed = (root / "docs" / "CMakeLists.txt").read_text(encoding="utf-8")
    for path in sorted((root / "docs").glob("*.md")):
        name = path.relative_to(root).as_posix()
        if name not in names:
            problems.append("%s is not among the pages of tests/docs/CMakeLists.txt" % name)
        if "    %s\n" % path.name not in listed:
            problems.append("%s is not among the pages of docs/CMakeLists.txt" % name)
    identifiers = [page.identifier for page in pages]
    problems += ["two pages make the file %s" % name for name in set(identifiers) if identifiers.count(name) > 1]

    cmake_blocks = CMakeBlocks(root, build, scratch)
    cmake_blocks.install()
    for page in pages:
        problems += page.problems
        problems += check_links(page, root)
        problems += check_paths(page, root, build)
        problems += cmake_blocks.check(page)
    problems += check_faults(root, scratch)
    for problem in problems:
        print(problem)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
