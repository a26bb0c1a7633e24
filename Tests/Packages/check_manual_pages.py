#!/usr/bin/env python3
"""Judges the manual pages of programs by what the programs tell with --help: each option and command, with what it
takes, and each exit status is in both.

    check_manual_pages.py FOLDER PROGRAM...
"""

import re
import subprocess
import sys
from pathlib import Path

FONT = re.compile(r"\\f[BIR]")
CALL = re.compile(r"--|[a-z]")  # how an option and a command begin
MACRO = re.compile(r"\.(?:B|I|BR|RB|BI|IB|IR|RI) ")


def words_of(line):
    """What a line of a page shows: macros that alternate between fonts set their arguments without a space."""
    text = FONT.sub("", line).replace("\\-", "-")
    macro = MACRO.match(text)

    if macro is None:
        return text

    arguments = re.findall(r'"((?:[^"]|"")*)"|(\S+)', text[macro.end():])
    joined = (quoted or plain for quoted, plain in arguments)
    return (" " if len(macro.group().strip()) == 2 else "").join(joined)


def told_by_page(page):
    lines = page.read_text(encoding="utf-8").splitlines()
    heads = [words_of(line) for before, line in zip(lines, lines[1:]) if before == ".TP"]
    return {head for head in heads if CALL.match(head) or head.isdigit()}


def told_by(program):
    text = subprocess.run([program, "--help"], text=True, capture_output=True, check=True, timeout=60).stdout
    calls = re.findall(r"^  (\S.*?)(?:  .*)?$", text, re.MULTILINE)
    statuses = re.findall(r"\b\d+\b", text.partition("\nExit status:")[2])
    return {call.strip() for call in calls if CALL.match(call)} | set(statuses)


def faults_of(page, program):
    if not page.exists():
        yield f"{program.name} has no manual page {page.name}"
        return

    in_page, in_help = told_by_page(page), told_by(program)

    for call in sorted(in_help - in_page):
        yield f"{page.name} does not tell of '{call}'"
    for call in sorted(in_page - in_help):
        yield f"{page.name} tells of '{call}', which {program.name} --help does not"


def main():
    folder, *programs = map(Path, sys.argv[1:])
    faults = [fault for program in programs for fault in faults_of(folder / f"{program.name.lower()}.1.in", program)]
    print("\n".join(faults) or "The manual pages tell what the programs do.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
