#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs a checker on those source files that it has not passed as they are now.

    check-changed.py NAME BUILD SETTINGS... -- COMMAND...

The files are read from standard input, a line each; COMMAND is run with one of them at a time, several
at once. BUILD is a folder that ninja has built: it knows what each file includes. What a file passed
with is kept in the user's cache, as a hash over the file, all that it includes, how it is compiled,
COMMAND, the checker's version and the SETTINGS files. Checking everything takes a good 20 minutes, and
most changes are small. Ends with 1 when a file fails.
"""

import hashlib
import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from functools import lru_cache
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
NOISE = re.compile(r"^\d+ (warning|error)s? (and \d+ errors? )?(generated|treated as errors?)")


@lru_cache(maxsize=None)
def content(path: str) -> str:
    try:
        return hashlib.sha256(Path(path).read_bytes()).hexdigest()
    except OSError:
        return "absent"


def included(build: Path) -> dict[str, list[str]]:
    """What each object file was made of, by the object's name."""
    lines = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True,
                           check=True).stdout.splitlines()
    objects: dict[str, list[str]] = {}
    current: list[str] = []
    for line in lines:
        if line.startswith("    "):
            current.append(os.path.normpath(build / line.strip()))
        elif line and not line.startswith("ninja:"):
            current = objects.setdefault(line.split(": #deps")[0], [])
    return objects


def key(common: str, entry: dict, includes: list[str]) -> str:
    """The same in every copy of the tree, wherever it lies."""
    parts = [common, entry["command"].replace(str(ROOT), "")]
    parts += sorted(f"{path.replace(str(ROOT), '')} {content(path)}" for path in includes)
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def main() -> int:
    split = sys.argv.index("--")
    name, build, *settings = sys.argv[1:split]
    command = sys.argv[split + 1:]
    build = ROOT / build
    cache = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "zuno-checks" / name
    cache.mkdir(parents=True, exist_ok=True)

    version = subprocess.run([command[0], "--version"], capture_output=True, text=True).stdout
    common = "\n".join([version, *command, *(content(str(ROOT / file)) for file in settings)])
    objects = included(build)
    entries = {entry["file"]: entry for entry in json.loads((build / "compile_commands.json").read_text())}

    def check(file: str) -> bool:
        entry = entries.get(str(ROOT / file))
        if entry is None:
            print(f"{file}: is not built", flush=True)
            return False
        made = re.search(r" -o (\S+)", entry["command"])
        includes = objects.get(made[1], []) if made else []
        mark = cache / key(common, entry, includes)
        if includes and mark.exists():
            mark.touch()
            return True
        run = subprocess.run([*command, file], cwd=ROOT, capture_output=True, text=True)
        lines = [line for line in (run.stdout + run.stderr).splitlines() if not NOISE.match(line)]
        if lines:
            print("\n".join(lines), flush=True)
        # A warning is enough: not every checker fails for one.
        if run.returncode != 0 or lines:
            return False
        mark.touch()
        return True

    files = [line.strip() for line in sys.stdin if line.strip()]
    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        passed = list(pool.map(check, files))
    return 0 if files and all(passed) else 1


if __name__ == "__main__":
    sys.exit(main())
