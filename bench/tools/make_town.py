#!/usr/bin/env python3
"""Writes a script of commands that draws a town at night: houses of lines and faces, and street lamps of every kind.

    bench/tools/make_town.py --lines 200000 --lights 10000 >town.scr
    build/bin/quorc -s town.scr -o town.dxf

The same numbers always give the same script.
"""
import argparse
import pathlib
import random

WEBS = pathlib.Path(__file__).resolve().parents[2] / "resources" / "webs"
STEP = 20.0  # from house to house
LINES_OF_HOUSE = 40


def point(x, y, z):
    return f"{x:.2f},{y:.2f},{z:.2f}"


def house(x, y, chance):
    """Two storeys and more of lines around a ground floor, as commands."""
    width, depth = chance.uniform(6, 14), chance.uniform(6, 14)
    storeys = LINES_OF_HOUSE // 8
    height = chance.uniform(2.6, 3.4)
    corners = [(x, y), (x + width, y), (x + width, y + depth), (x, y + depth)]
    for storey in range(storeys):
        low, high = storey * height, (storey + 1) * height
        for (ax, ay), (bx, by) in zip(corners, corners[1:] + corners[:1]):
            yield f"LINE {point(ax, ay, high)} {point(bx, by, high)}\n"
            yield f"LINE {point(ax, ay, low)} {point(ax, ay, high)}\n"


def roof(x, y, width, height):
    yield f"3DFACE {point(x, y, height)} {point(x + width, y, height)} {point(x + width, y + width, height)} {point(x, y + width, height)}\n"


def lamp(number, x, y):
    height = 6.0
    kind = number % 4
    if kind == 0:
        yield f"POINTLIGHT {point(x, y, height)}\nN\nLamp {number}\nX"
    elif kind == 1:
        yield f"SPOTLIGHT {point(x, y, height)} {point(x, y + 3, 0)}\nN\nSpot {number}\nX"
    elif kind == 2:
        yield f"FREESPOT {point(x, y, height)}\nN\nDown {number}\nX"
    else:
        yield f"FREEWEB {point(x, y, height)}\nN\nStreet {number}\nB F\n{WEBS / 'street.ies'}\nE\nX"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--lines", type=int, default=200_000)
    parser.add_argument("--lights", type=int, default=10_000)
    numbers = parser.parse_args()
    chance = random.Random(1)
    houses = numbers.lines // LINES_OF_HOUSE
    side = max(1, round(houses ** 0.5))
    print("DEFAULTLIGHTING 0\nLIGHTINGUNITS 2")
    for i in range(houses):
        x, y = (i % side) * STEP, (i // side) * STEP
        for command in house(x, y, chance):
            print(command)
        if i % 4 == 0:
            for command in roof(x, y, 10, 0.01 + 3 * (i % 5)):
                print(command)
    size = side * STEP
    for number in range(numbers.lights):
        for command in lamp(number, chance.uniform(0, size), chance.uniform(0, size)):
            print(command)


if __name__ == "__main__":
    main()
