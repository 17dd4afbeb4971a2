#!/usr/bin/env python3
"""Makes one table of what the benchmarks have written.

table.py RESULTS QT-VERSION [DOCUMENT]: RESULTS is a folder with the rows of the programs, one file for
each program and way to run it. Prints the table, and puts it into DOCUMENT between the two marks there.
"""

import datetime
import json
import os
import platform
import subprocess
import sys
from pathlib import Path

BEGIN = "<!-- The table begins here; scripts/bench writes it. -->"
END = "<!-- The table ends here. -->"
WAYS = ["offscreen", "xvfb", "instructions"]
HEAD = ["Operation", "Ours", "Stock", "Ratio", "Ratio on X11", "Ratio of instructions",
        "Growth exponent", "Goal", "Reached"]


def read_rows(results):
    """The rows by their operation, in the order in which the programs wrote them."""
    rows = {}
    for way in WAYS:
        for file in sorted(results.glob("*." + way)):
            for line in file.read_text().splitlines():
                row = json.loads(line)
                rows.setdefault(row["operation"], {})[way] = row
    return rows


def number(value, digits=2):
    return f"{value:,.{digits}f}"


def amount(row, side):
    value, unit = row.get(side, 0.0), row["unit"]
    if unit == "us":
        if value >= 10000:
            return number(value / 1000, 1) + " ms"
        return number(value) + " µs"
    if unit == "bytes":
        return number(value / 1024, 1) + " KiB"
    if unit == "bytes gained":
        return number(value, 1) + " B"
    if unit == "instructions":
        return number(value, 0) + " instr."
    return ""


def compared(measured):
    """The values that must not be above the goal."""
    first = next(iter(measured.values()))
    if first["unit"] == "exponent":
        return [row["exponent"] for way, row in measured.items() if way != "instructions"]
    if first["unit"] == "bytes gained":
        return [first["ours"]]
    if first.get("goal of") == "instructions":
        return [measured["instructions"]["ratio"]] if "instructions" in measured else []
    return [row["ratio"] for way, row in measured.items() if way != "instructions"]


def goal_text(row):
    if row["goal"] <= 0.0:
        return ""
    text = "≤ " + f"{row['goal']:g}"
    if row.get("goal of") == "instructions":
        return text + " (instructions)"
    if row["unit"] == "bytes gained":
        return text + " B"
    return text


def reached(row, values):
    if row["goal"] <= 0.0 or not values:
        return ""
    return "yes" if all(value <= row["goal"] for value in values) else "**no**"


def cells(operation, measured):
    row = measured.get("offscreen") or next(iter(measured.values()))

    def ratio(way):
        return number(measured[way]["ratio"]) if measured.get(way, {}).get("ratio") else ""

    exponent = ""
    if row["unit"] == "exponent":
        exponent = number(row["exponent"])
        if "xvfb" in measured:
            exponent += ", on X11 " + number(measured["xvfb"]["exponent"])
        if row.get("stock exponent"):
            exponent += "; stock " + number(row["stock exponent"])
    return [operation, amount(row, "ours"), amount(row, "stock"), ratio("offscreen"), ratio("xvfb"),
            ratio("instructions"), exponent, goal_text(row), reached(row, compared(measured))]


def machine():
    model = platform.processor() or platform.machine()
    try:
        for line in Path("/proc/cpuinfo").read_text().splitlines():
            if line.startswith("model name"):
                model = line.split(":", 1)[1].strip()
                break
    except OSError:
        pass
    return f"{model}, {os.cpu_count()} CPUs, {platform.system()} {platform.release()}"


def source(folder):
    command = ["git", "-C", str(folder), "rev-parse", "--short", "HEAD"]
    try:
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()
    except (OSError, subprocess.CalledProcessError):
        return "unknown"


def write_table(document, lines):
    text = document.read_text()
    begin, end = text.index(BEGIN) + len(BEGIN), text.index(END)
    document.write_text(text[:begin] + "\n\n" + "\n".join(lines) + "\n\n" + text[end:])


def main():
    results, qt_version = Path(sys.argv[1]), sys.argv[2]
    rows = read_rows(results)
    here = Path(__file__).resolve().parent
    lines = [f"{datetime.date.today().isoformat()}, commit {source(here)}, Qt {qt_version}, "
             f"{machine()}.", "",
             "| " + " | ".join(HEAD) + " |",
             "|" + " --- |" + " ---: |" * 6 + " --- | --- |"]
    table = [cells(operation, measured) for operation, measured in rows.items()]
    # Those with a goal come first.
    for row in sorted(table, key=lambda row: row[7] == ""):
        lines.append("| " + " | ".join(row) + " |")
    print("\n".join(lines))
    if len(sys.argv) > 3:
        write_table(Path(sys.argv[3]), lines)
        print(f"Written to {sys.argv[3]}", file=sys.stderr)


main()
