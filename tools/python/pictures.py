#!/usr/bin/env python3
"""Draws the pictures of docs/python.md.

The package must be importable: PYTHONPATH=python tools/python/pictures.py
"""

from pathlib import Path

import kelpower
import matplotlib

IMAGES = Path(__file__).resolve().parents[2] / "docs" / "images"


def curves():
    return kelpower.two_means(effect_d=[0.2, 0.5, 0.8], power=0.8).plot("n")


def surface():
    return kelpower.two_means(effect_d=0.5, power=0.8).plot("n-effect_d")


def densities():
    return kelpower.two_means(effect_d=0.5, power=0.8).plot("densities")


def frame():
    designs = kelpower.grid("two-means", effect_d=[0.3, 0.4, 0.5, 0.6, 0.7, 0.8], power=[0.8, 0.9, 0.95])
    return kelpower.plot(designs, x="effect_d", hue="target_power", test="two-means")


def main():
    matplotlib.use("Agg")
    for draw in (curves, surface, densities, frame):
        # Without the release of matplotlib, so that the files change with the pictures alone.
        draw().figure.savefig(IMAGES / f"python-{draw.__name__}.png", dpi=100, metadata={"Software": None})
        print("drew", draw.__name__)


if __name__ == "__main__":
    main()
