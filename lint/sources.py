"""The C and C++ files of some folders, and where the project is."""

import os

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def sources(*folders):
    """Every source and header below the folders, as paths from the root."""
    for folder in folders:
        for place, _, names in os.walk(os.path.join(ROOT, folder)):
            for name in sorted(names):
                if name.endswith((".cpp", ".c", ".h")):
                    yield os.path.relpath(os.path.join(place, name), ROOT)


def lines(path):
    """The lines of a file with their numbers, from 1."""
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return list(enumerate(file, 1))
