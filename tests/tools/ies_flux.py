#!/usr/bin/env python3
"""Works out the luminous flux of photometric web files, independently of the program under test.

    ies_flux.py [--fine N] FILE...

Prints for each file the flux in lumen by two ways of its own:
  zonal  every cell of the grid with its exact solid angle and the mean of its four corners. The grid is first unfolded
         to all directions by the symmetry, cell by cell, so that nothing is multiplied by 2 or 4.
  fine   Simpson's rule over N parts of every cell, in both directions, of the bilinearly interpolated intensity times
         the sine (type C) or cosine (types A and B) of the angle: what the same web would shine when it is interpolated.
The two differ on coarse grids; how much is printed, too. Reads sound files only.
"""
import argparse
import math
import re

SEPARATORS = re.compile(r"[\s,]+")
TILT = re.compile(r"^[ \t]*TILT[ \t]*=[ \t]*(NONE|INCLUDE)\b", re.IGNORECASE | re.MULTILINE)
OLD = ("IESNA91",)
TAGS = ("IESNA:LM-63-1995", "IESNA:LM-63-2002", "IES:LM-63-2019")


class Web:
    """Angles in degrees, intensities by plane in candela."""

    def __init__(self, path):
        with open(path, "rb") as file:
            text = file.read().decode("latin-1")
        tilt = TILT.search(text)
        label = text[:tilt.start()]
        self.numbers = [part for part in SEPARATORS.split(text[tilt.end():]) if part]
        if tilt.group(1).upper() == "INCLUDE":
            self.take(1)
            self.take(2 * int(self.take(1)[0]))
        _, _, multiplier, rows, planes, self.type, _, _, _, _, ballast, third, _ = self.take(13)
        self.vertical = self.take(int(rows))
        self.horizontal = self.take(int(planes))
        factor = multiplier * ballast * (third if self.is_old(label) else 1)
        self.planes = [[factor * value for value in self.take(int(rows))] for _ in self.horizontal]
        self.unfold()

    @staticmethod
    def is_old(label):
        first = label.strip().splitlines()[0].strip() if label.strip() else ""
        if first in TAGS:
            return False
        return first in OLD or not re.search(r"^\s*\[", label, re.MULTILINE)

    def take(self, size):
        taken, self.numbers = self.numbers[:size], self.numbers[size:]
        return [float(number) for number in taken]

    def mirror(self, at):
        """Adds the planes mirrored at the last angle `at`."""
        for angle, plane in list(zip(self.horizontal, self.planes))[-2::-1]:
            self.horizontal.append(2 * at - angle)
            self.planes.append(plane)

    def unfold(self):
        """All planes of all directions, in increasing order of their angles."""
        if self.type != 1:
            if self.horizontal[0] == 0:
                self.mirror_back()
            return
        if len(self.horizontal) == 1:
            self.horizontal, self.planes = [0.0, 360.0], self.planes * 2
            return
        if self.horizontal[-1] == 90:
            self.mirror(90)
        if self.horizontal[0] == 90 or self.horizontal[-1] == 180:
            self.mirror(self.horizontal[-1])
        first, last = self.horizontal[0], self.horizontal[-1]
        if last - first > 180 and last < first + 360:
            self.horizontal.append(first + 360)
            self.planes.append(self.planes[0])

    def mirror_back(self):
        """The planes below 0 of the types A and B, which are those above it."""
        self.horizontal = [-angle for angle in self.horizontal[:0:-1]] + self.horizontal
        self.planes = self.planes[:0:-1] + self.planes

    def solid_angle(self, v1, v2, h1, h2):
        v1, v2, h1, h2 = (math.radians(angle) for angle in (v1, v2, h1, h2))
        if self.type == 1:
            return (math.cos(v1) - math.cos(v2)) * (h2 - h1)
        if self.type == 2:
            return (v2 - v1) * (math.sin(h2) - math.sin(h1))
        return (math.sin(v2) - math.sin(v1)) * (h2 - h1)

    def density(self, v, h):
        """Steradians per square degree."""
        angle = {1: 90 - v, 2: h, 3: v}[self.type]
        return math.cos(math.radians(angle)) * math.radians(1) ** 2

    def cells(self):
        """(v1, v2, h1, h2, the four corners) of every cell."""
        for j in range(len(self.horizontal) - 1):
            near, far = self.planes[j], self.planes[j + 1]
            for i in range(len(self.vertical) - 1):
                yield (self.vertical[i], self.vertical[i + 1], self.horizontal[j], self.horizontal[j + 1],
                       (near[i], near[i + 1], far[i], far[i + 1]))

    def zonal(self):
        return math.fsum(self.solid_angle(*cell[:4]) * math.fsum(cell[4]) / 4 for cell in self.cells())

    def fine(self, parts):
        weights = [1 if k in (0, parts) else 4 if k % 2 else 2 for k in range(parts + 1)]
        total = []
        for v1, v2, h1, h2, (a, b, c, d) in self.cells():
            inside = 0.0
            for i, row in enumerate(weights):
                s = i / parts
                for j, column in enumerate(weights):
                    t = j / parts
                    value = (a * (1 - s) + b * s) * (1 - t) + (c * (1 - s) + d * s) * t
                    inside += row * column * value * self.density(v1 + (v2 - v1) * s, h1 + (h2 - h1) * t)
            total.append(inside * (v2 - v1) * (h2 - h1) / (3 * parts) ** 2)
        return math.fsum(total)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("files", nargs="+", metavar="FILE")
    parser.add_argument("--fine", type=int, default=4, metavar="N", help="parts of a cell, even (default: 4)")
    options = parser.parse_args()
    print(f"{'zonal':>12} {'fine':>12} {'differ':>9}  file")
    for path in options.files:
        web = Web(path)
        zonal, fine = web.zonal(), web.fine(options.fine)
        print(f"{zonal:12.4f} {fine:12.4f} {100 * (fine - zonal) / zonal:8.3f}%  {path}")


if __name__ == "__main__":
    main()
