#!/usr/bin/env python3
"""Holds the ladder of folders: no include upwards, no circle between files, no toolkit outside its
folder. The allowed edges stand in layers.txt."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SRC = ROOT / "src"
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
TOOLKIT_FOLDERS = ("platform/qt",)
GENERATED = {"platform/palette.h", "platform/skin_pictures.h"}


def read_layers():
    layers = {}
    for line in (ROOT / "tools/layers.txt").read_text().splitlines():
        if line and not line.startswith("#"):
            folder, below = line.split(":")
            layers[folder] = set(below.split()) | {folder}
    return layers


def layer_of(path, layers):
    fitting = [name for name in layers if path.startswith(name + "/")]
    return max(fitting, key=len) if fitting else None


def find_circle(graph):
    done, stack = set(), []

    def visit(node):
        if node in stack:
            return stack[stack.index(node):] + [node]
        if node in done:
            return None
        stack.append(node)
        for other in sorted(graph.get(node, ())):
            circle = visit(other)
            if circle:
                return circle
        stack.pop()
        done.add(node)
        return None

    for node in sorted(graph):
        circle = visit(node)
        if circle:
            return circle
    return None


def main():
    layers = read_layers()
    problems, graph = [], {}
    files = sorted(p for p in SRC.rglob("*") if p.suffix in (".h", ".cpp"))
    for path in files:
        name = path.relative_to(SRC).as_posix()
        own = layer_of(name, layers)
        if own is None:
            problems.append(f"src/{name}: its folder is not in tools/layers.txt")
            continue
        graph[name] = set()
        for kind, target in INCLUDE.findall(path.read_text()):
            if kind == "<":
                if re.match(r"Q[A-Z]|Qt", target) and own not in TOOLKIT_FOLDERS:
                    problems.append(f"src/{name}: toolkit header <{target}> outside its folder")
                continue
            if target in GENERATED:
                continue
            if not (SRC / target).is_file():
                problems.append(f"src/{name}: no file src/{target}")
                continue
            graph[name].add(target)
            other = layer_of(target, layers)
            if other not in layers[own]:
                problems.append(f"src/{name}: {own} may not include {other} ({target})")
    circle = find_circle(graph)
    if circle:
        problems.append("circle of includes: " + " -> ".join(circle))
    print("\n".join(problems) if problems else f"{len(files)} files keep the ladder, no circle")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
