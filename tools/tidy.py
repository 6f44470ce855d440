#!/usr/bin/env python3
"""Checks the sources with clang-tidy: tools/tidy.py [--fix] BUILD...

BUILD are build folders with a compile_commands.json; a file that several have is taken from the first.
The files of a folder are checked together, as one unit that includes them all, since most of the time goes
into reading the headers that they share. Files that cannot stand in one unit with the others, for a local
name that both have, are checked alone. A unit is checked again only when something that it read has
changed; build/lint keeps what was read. With --fix what clang-tidy can mend is mended.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

import yaml

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("src", "tests", "bench", "fuzz", "tools")
WORK = ROOT / "build" / "lint"
CONFIG = ROOT / ".clang-tidy"
FINDING = re.compile(r"^(/\S+?):(\d+):(\d+): (?:warning|error): (.*)$")


class Unit:
    """Files of one folder with the same flags."""

    def __init__(self, files, flags):
        self.files = files
        self.flags = flags
        folder = files[0].parent.relative_to(ROOT)
        name = str(folder if len(files) > 1 else files[0].relative_to(ROOT)).replace("/", "_")
        self.source = WORK / f"{name}.{digest(flags, files)[:8]}.cpp"
        self.inputs = self.source.with_suffix(".d")
        self.stamp = self.source.with_suffix(".stamp")
        self.fixes = self.source.with_suffix(".yaml")

    def fresh(self):
        """Whether nothing changed since it was found clean."""
        if not self.stamp.exists():
            return False
        stamped = json.loads(self.stamp.read_text())
        return all(contents_digest(name) == known for name, known in stamped.items())

    def set_stamp(self):
        text = self.inputs.read_text().replace("\\\n", " ").split(":", 1)[1]
        names = {os.path.realpath(name) for name in shlex.split(text)}
        own = sorted(name for name in names if name.startswith(f"{ROOT}/"))
        self.stamp.write_text(json.dumps({name: contents_digest(name) for name in [*own, str(CONFIG)]}))

    def check(self):
        """What clang-tidy says, by place; sources that the compiler refuses under None."""
        self.fixes.unlink(missing_ok=True)
        self.source.write_text("".join(f'#include "{file}"\n' for file in self.files))
        command = ["clang-tidy", "--quiet", f"--config-file={CONFIG}", f"--export-fixes={self.fixes}", str(self.source), "--",
                   *self.flags, "-Wno-unknown-warning-option", "-Wno-everything", f"-Wp,-MD,{self.inputs}"]
        output = subprocess.run(command, capture_output=True, text=True, check=False, cwd=ROOT).stdout
        findings, refused = {}, {}
        lines = output.splitlines()
        for index, line in enumerate(lines):
            match = FINDING.match(line)
            if not match:
                continue
            file = os.path.realpath(match[1])
            text = f"{os.path.relpath(file, ROOT)}:{match[2]}:{match[3]}: {match[4]}"
            if "[clang-diagnostic-error" in match[4]:
                refused.setdefault(pathlib.Path(file), text)
            findings[text] = "\n".join([text, *lines[index + 1:index + 3]])
        return findings, refused


def digest(*parts):
    return hashlib.sha256(repr(parts).encode()).hexdigest()


def contents_digest(name):
    try:
        return hashlib.sha256(pathlib.Path(name).read_bytes()).hexdigest()
    except OSError:
        return None


def compiler_flags(command):
    """Without the compiler, the launcher before it, the files, and what only the other compiler knows."""
    words = shlex.split(command)
    first = next(i for i, word in enumerate(words) if word.startswith("-"))
    flags, skip = [], False
    for word in words[first:]:
        if skip or word == "-c" or word.endswith(".cpp"):
            skip = False
        elif word in ("-o", "-MT", "-MF"):
            skip = True
        elif not word.startswith(("-W", "-fsanitize", "-fno-sanitize")) and word != "-MD":
            flags.append(word)
    return tuple(flags)


def read_sources(builds):
    sources = {}
    for build in builds:
        for entry in json.loads((pathlib.Path(build) / "compile_commands.json").read_text()):
            file = pathlib.Path(entry["file"])
            if file.is_relative_to(ROOT) and file.relative_to(ROOT).parts[0] in FOLDERS:
                sources.setdefault(file, compiler_flags(entry["command"]))
    return sources


def make_units(sources, alone):
    groups = {}
    for file, flags in sorted(sources.items()):
        groups.setdefault((file.parent, flags, file if file in alone else None), []).append(file)
    return [Unit(files, flags) for (_, flags, _), files in groups.items()]


def check_all(units):
    """Checks the units; gives the findings and the files that must stand alone."""
    findings, alone = {}, set()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for unit, (found, refused) in zip(units, pool.map(Unit.check, units)):
            apart = set(unit.files) & set(refused)
            if len(unit.files) > 1 and refused:
                alone |= apart or set(unit.files)
                unit.fixes.unlink(missing_ok=True)
            elif found:
                findings.update(found)
            else:
                unit.set_stamp()
    return findings, alone


def apply_fixes(units):
    """Applies what the units' runs proposed, each replacement once, the last of a file first."""
    proposed = {}
    for unit in units:
        if not unit.fixes.exists():
            continue
        for diagnostic in yaml.safe_load(unit.fixes.read_text())["Diagnostics"]:
            for change in diagnostic["DiagnosticMessage"]["Replacements"]:
                place = (change["Offset"], change["Length"], change["ReplacementText"])
                proposed.setdefault(os.path.realpath(change["FilePath"]), set()).add(place)
    for name, changes in proposed.items():
        contents, reached = pathlib.Path(name).read_bytes(), None
        for offset, length, text in sorted(changes, reverse=True):
            if reached is None or offset + length <= reached:
                contents = contents[:offset] + text.encode() + contents[offset + length:]
                reached = offset
        pathlib.Path(name).write_bytes(contents)


def check_and_split(sources, alone):
    """Checks what is not fresh, taking units apart until each compiles; gives the units and the findings."""
    done, findings = {}, {}
    while True:
        units = [unit for unit in make_units(sources, alone) if unit.source not in done and not unit.fresh()]
        found, apart = check_all(units)
        findings.update(found)
        done.update({unit.source: unit for unit in units})
        if not apart:
            return done.values(), findings
        alone |= apart


def main(arguments):
    fix = "--fix" in arguments
    WORK.mkdir(parents=True, exist_ok=True)
    memory = WORK / "alone.json"
    alone = {pathlib.Path(name) for name in json.loads(memory.read_text())} if memory.exists() else set()
    sources = read_sources([argument for argument in arguments if argument != "--fix"])
    units, findings = check_and_split(sources, alone)
    memory.write_text(json.dumps(sorted(map(str, alone))))
    for text in sorted(findings):
        print(findings[text])
    if fix:
        apply_fixes(units)
    return 1 if findings else 0


sys.exit(main(sys.argv[1:]))
