#!/usr/bin/env python3
"""Draws Progress.pra, the animation of a reload: dots running round a circle. Needs ImageMagick.

Usage: draw_progress.py OUTPUT
"""
import math
import subprocess
import sys

SIDE = 64
DOTS = 10
DELAY_HUNDREDTHS = 8
# Between the accent colours of the light and the dark theme, so that it stands out on both.
COLOR = "#3f8de0"


def frame_drawing(first_dot):
    """The dot that leads is the largest; those behind it shrink, since a GIF cannot fade."""
    circles = []
    for behind in range(DOTS):
        angle = 2 * math.pi * (first_dot - behind) / DOTS - math.pi / 2
        radius = 5.4 * (1 - behind / DOTS) + 1.4
        x = SIDE / 2 + 23 * math.cos(angle)
        y = SIDE / 2 + 23 * math.sin(angle)
        circles.append(f"circle {x:.2f},{y:.2f} {x + radius:.2f},{y:.2f}")
    return " ".join(circles)


def main(output):
    command = ["convert", "-size", f"{SIDE}x{SIDE}", "-delay", str(DELAY_HUNDREDTHS), "-dispose", "Background"]
    for first_dot in range(DOTS):
        command += ["(", "xc:transparent", "-fill", COLOR, "+antialias", "-draw", frame_drawing(first_dot), ")"]
    subprocess.run(command + ["-loop", "0", "+dither", "-colors", "4", f"gif:{output}"], check=True)


if __name__ == "__main__":
    main(sys.argv[1])
