#!/usr/bin/env python3
"""Counts what the shape of the source can be judged by, for comparing before and after a change.

    tools/measure_house.py [--source src] [--unused BUILD]

Lines per file and per function, parameters, accesses to shared state by name, direction of
includes, functions that stand under another stem than their class, functions called once.
With --unused it links the program of that build folder once more without what nobody uses, and lists the
functions that fell out: code that only tests run. The folder must have been configured with
-DCMAKE_CXX_FLAGS=-ffunction-sections. Needs Python 3 alone (and binutils for --unused).
"""
import argparse
import collections
import pathlib
import re
import subprocess

FLOORS = {"platform": 1, "store": 2, "app": 3, "office": 4, "forms": 5, "desktop": 5, "dogs": 5,
          "setup": 5, "payments": 5, "reports": 5, "manager": 6, "mainwindow": 6}
GOALS = {"function": 45, "cpp": 200, "Module()": 70, "ThePlatform()": 60}

KEYWORDS = {"if", "for", "while", "switch", "catch", "return", "sizeof", "namespace", "do", "else"}
HEAD = re.compile(r"^(\s*)(?!#)(?:[\w:<>,&*\[\]~\s\"=.-]+?)?\b([\w:~]+|operator[^\s(]+)\s*\(")


def share(values, part):
    """The value that `part` of all values don't exceed."""
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, int(part * len(ordered)))] if ordered else 0


def parameters(head):
    inner = head[head.index("(") + 1:]
    depth, count, seen = 0, 0, False
    for letter in inner:
        if letter in "(<[{":
            depth += 1
        elif letter in ")>]}":
            if letter == ")" and depth == 0:
                break
            depth -= 1
        elif letter == "," and depth == 0:
            count += 1
        seen = seen or not letter.isspace()
    return count + 1 if seen else 0


def functions(path):
    """(name, first line, number of lines, parameters) of each definition that has lines of its own."""
    lines = path.read_text(encoding="utf-8").split("\n")
    found, number = [], 0
    while number < len(lines):
        head, last = lines[number], number
        match = HEAD.match(head)
        if not match or match.group(2).split("::")[-1] in KEYWORDS or "= [" in head:
            number += 1
            continue
        while not re.search(r"[{};]\s*(//.*)?$", lines[last]) and last + 1 < len(lines) and last - number < 8:
            last += 1
            head += " " + lines[last].strip()
        if not head.rstrip().endswith("{") or re.match(r"\s*(class|struct|enum|namespace)\b", head):
            number += 1
            continue
        close = match.group(1) + "}"
        end = next((i for i in range(last + 1, len(lines)) if lines[i].startswith(close)
                    and len(lines[i]) - len(lines[i].lstrip()) == len(match.group(1))), None)
        if end is None:
            number += 1
            continue
        found.append((match.group(2), number + 1, end - number + 1, parameters(head)))
        number = last + 1 if match.group(1) == "" and "class" in head else end + 1
    return found


def print_lines(title, values, unit="lines"):
    print(f"{title}: {len(values)}; median {share(values, .5)}, 90 of 100 {share(values, .9)}, "
          f"99 of 100 {share(values, .99)}, longest {max(values, default=0)} {unit}")


def measure_sizes(source, files):
    for ending in ("cpp", "h"):
        sizes = [(len(f.read_text(encoding="utf-8").split("\n")) - 1, f) for f in files if f.suffix == "." + ending]
        print_lines(f".{ending} files", [size for size, _ in sizes])
        for size, path in sorted(sizes, reverse=True)[:3]:
            print(f"    {size} {path.relative_to(source)}")
    defined = [(lines, count, name, path, first) for path in files
               for name, first, lines, count in functions(path)]
    print_lines("functions", [lines for lines, *_ in defined])
    for lines, _, name, path, first in sorted(defined, key=lambda d: -d[0]):
        if lines > GOALS["function"]:
            print(f"    {lines} {path.relative_to(source)}:{first} {name}")
    print_lines("parameters", [count for _, count, *_ in defined], "parameters")
    return defined


def measure_shared_state(source, files):
    rooms = {"Module()": ("app/",), "ThePlatform()": ("platform/", "desktop/", "main.cpp")}
    for name, own in rooms.items():
        by_room = collections.Counter()
        for path in files:
            place = str(path.relative_to(source))
            if not place.startswith(own):
                uses = re.findall(r"\b" + re.escape(name), path.read_text(encoding="utf-8"))
                by_room[place.split("/")[0]] += len(uses)
        rows = ", ".join(f"{room} {n}" for room, n in by_room.most_common() if n)
        print(f"{name} outside its own rooms: {sum(by_room.values())} (goal {GOALS[name]}): {rows}")
    fields = collections.Counter()
    for path in files:
        fields.update(re.findall(r"\bModule\(\)\.(\w+)", path.read_text(encoding="utf-8")))
    print("    by value: " + ", ".join(f"{field} {n}" for field, n in fields.most_common()))


def measure_includes(source, files):
    upward = []
    for path in files:
        room = path.relative_to(source).parts[0]
        for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
            match = re.match(r'#include "([a-z]+)/', line)
            if match and FLOORS.get(match.group(1), 0) > FLOORS.get(room, 7):
                upward.append(f"{path.relative_to(source)}:{number} {line}")
    print(f"includes that go up: {len(upward)}")
    for line in upward:
        print("    " + line)


def measure_stems(source, files, defined):
    home = {}
    for path in files:
        if path.suffix == ".h":
            for match in re.finditer(r"^(?:class|struct) (\w+)(?: final)?(?: :|\s*\{)",
                                     path.read_text(encoding="utf-8"), re.M):
                home[match.group(1)] = path.stem
    strangers = collections.Counter()
    for _, _, name, path, _ in defined:
        owner = name.split("::")[0]
        if "::" in name and path.suffix == ".cpp" and home.get(owner, path.stem) != path.stem:
            strangers[f"{path.relative_to(source)} ({owner} of {home[owner]}.h)"] += 1
    print(f"files whose functions belong to a class of another stem: {len(strangers)}")
    for place, count in strangers.most_common():
        print(f"    {count} {place}")


def measure_calls(files, defined):
    words = collections.Counter()
    for path in files:
        text = re.sub(r"//.*|\"(?:[^\"\\]|\\.)*\"", "", path.read_text(encoding="utf-8"))
        words.update(re.findall(r"\b\w+\b", text))
    declared = collections.Counter()
    for path in files:
        if path.suffix == ".h":
            declared.update(set(re.findall(r"\b(\w+)\(", path.read_text(encoding="utf-8"))))
    once = sum(1 for _, _, name, *_ in defined
               if words[name.split("::")[-1]] - (1 if declared[name.split("::")[-1]] else 0) == 2)
    print(f"functions whose name is used once beside definition and declaration: {once}")


def measure_unused(build):
    """Functions of the program's own libraries that the linker drops."""
    build = pathlib.Path(build)
    link = subprocess.run(["ninja", "-C", build, "-t", "commands", "Lorvo"], check=True,
                          capture_output=True, text=True).stdout.strip().split("\n")[-1]
    link = re.sub(r"-o \S+", "-o /dev/null", link.replace("&& :", "")).replace(": &&", "")
    said = subprocess.run(link + " -Wl,--gc-sections,--print-gc-sections", shell=True, cwd=build,
                          capture_output=True, text=True).stderr
    symbols = re.findall(r"section '\.text\.(_Z\S+)' in file '(?:\S*liblorvo_\S+|src/\S+)'", said)
    names = subprocess.run(["c++filt"], input="\n".join(sorted(set(symbols))), capture_output=True,
                           text=True).stdout.split("\n")
    own = [name for name in names if re.match(r"(?:\w+ )?lorvo::", name) and "{lambda" not in name
           and "::~" not in name and " [clone" not in name]
    print(f"functions that the program never runs: {len(own)}")
    for name in own:
        print("    " + name)


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    options.add_argument("--source", default="src")
    options.add_argument("--unused", metavar="BUILD")
    chosen = options.parse_args()
    source = pathlib.Path(chosen.source)
    files = sorted(path for path in source.rglob("*") if path.suffix in (".cpp", ".h"))
    defined = measure_sizes(source, files)
    measure_shared_state(source, files)
    measure_includes(source, files)
    measure_stems(source, files, defined)
    measure_calls(files, defined)
    if chosen.unused:
        measure_unused(chosen.unused)


main()
