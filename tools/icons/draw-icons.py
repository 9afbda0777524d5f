#!/usr/bin/env python3
"""Draws the icons: writes data/icons from the table in drawings.py.

usage: draw-icons.py FOLDER

Each drawing becomes two files, NAME_16x16.svg and NAME_20x20.svg. The larger one is no mere enlargement: its lines
are moved to the middle of a pixel again, so that both are sharp at their own size and at twice that.
"""
import math
import pathlib
import re
import sys

from drawings import BUTTONS, DRAWINGS, SAME_AS

GRID = 16


def place(value, size, snap):
    scaled = value * size / GRID
    if not snap or size == GRID:
        return scaled
    fraction = value - math.floor(value)
    if fraction == 0.5:
        return math.floor(scaled) + 0.5
    return round(scaled) if fraction == 0 else scaled


def text(value):
    return f"{value:.2f}".rstrip("0").rstrip(".")


def scale(path, size):
    """The path on a grid of `size` units. Curves keep their shape; what only has straight lines is made sharp."""
    snap = not re.search("[ACQ]", path)
    result = []
    for command, arguments in re.findall(r"([A-Z])([^A-Z]*)", path):
        numbers = [float(number) for number in re.findall(r"-?\d+\.?\d*", arguments)]
        if command == "A":
            radius = text(numbers[0] * size / GRID)
            placed = [radius, radius, "0", text(numbers[3]), text(numbers[4])]
            placed += [text(place(number, size, snap)) for number in numbers[5:]]
        else:
            placed = [text(place(number, size, snap)) for number in numbers]
        result.append(command + " ".join(placed))
    return "".join(result)


def shape(kind, path, size):
    paint = {
        "line": 'fill="none"',
        "area": 'fill-opacity="0.25" fill-rule="evenodd"',
        "solid": 'stroke="none"',
    }[kind]
    return f'<path {paint} d="{scale(path, size)}"/>'


def picture(drawing, size):
    colour, *shapes = drawing
    lines = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" viewBox="0 0 {size} {size}">',
        f'<g fill="{colour}" stroke="{colour}" stroke-linecap="round" stroke-linejoin="round">',
        *(shape(kind, path, size) for kind, path in shapes),
        "</g>",
        "</svg>",
    ]
    return "\n".join(lines) + "\n"


def write_drawings(folder, drawings):
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.glob("*.svg"):
        old.unlink()
    for name, drawing in drawings.items():
        for size in (16, 20):
            (folder / f"{name}_{size}x{size}.svg").write_text(picture(drawing, size))


def write_same_as(file):
    lines = ["# Names that share the drawing of another: DRAWING: NAME..."]
    for drawing, names in SAME_AS.items():
        taken = [name for name in names.split() if name in DRAWINGS]
        if drawing not in DRAWINGS or taken:
            raise SystemExit(f"{drawing}: no drawing, or these have one of their own: {taken}")
        lines.append(f"{drawing}: {names}")
    file.write_text("\n".join(lines) + "\n")


def main():
    folder = pathlib.Path(sys.argv[1])
    write_drawings(folder / "IFC", DRAWINGS)
    write_drawings(folder / "Buttons", BUTTONS)
    write_same_as(folder / "IFC" / "same-as.txt")


if __name__ == "__main__":
    main()
