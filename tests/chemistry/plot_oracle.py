#!/usr/bin/env python3
"""Writes plot_oracle.txt: the plot arithmetic worked out apart from the program, for plot_test.cpp.

The rules, in their own words. x is the text's number; y is kept negated. A margin of 5 % (x) or 8 % (y) of
the data's extent is added on either side. A position is the whole part of value / span * steps, toward
zero, with 240 steps in x and 268 in y; a place is the position less that of the view's lower bound. Lines:

  data MINX MAXX MINY MAXY / view LOWX HIGHX LOWY HIGHY / origin X Y / at ELEMENT PLACEX PLACEY
"""
import math

W, H = 240, 268


def texts(i):
    """The made-up element with index i: its x and y, or None where it has none."""
    if i % 9 == 4:
        return None
    return (i + 1, ((i * 37) % 50) * 4 + 0.5 * (i % 3) - 60)


def emit(out, name, view, values):
    (lx, hx), (ly, hy) = view
    sx, sy = hx - lx, hy - ly
    ox, oy = math.trunc(lx / sx * W), math.trunc(ly / sy * H)
    out.append(f"case {name}")
    out.append(f"view {lx!r} {hx!r} {ly!r} {hy!r}")
    out.append(f"origin {ox} {oy}")
    for i, (x, y) in values:
        out.append(f"at {i} {math.trunc(x / sx * W) - ox} {math.trunc(y / sy * H) - oy}")
    return (sx, sy, ox, oy)


def main():
    out = ["# Written by plot_oracle.py."]
    # Signs stand behind the digits in the texts, so that they count.
    values = [(i, (float(texts(i)[0]), -float(texts(i)[1]))) for i in range(112) if texts(i)]
    xs, ys = [v[0] for _, v in values], [v[1] for _, v in values]
    out.append(f"data {min(xs)!r} {max(xs)!r} {min(ys)!r} {max(ys)!r}")
    mx, my = (max(xs) - min(xs)) * 0.05, (max(ys) - min(ys)) * 0.08
    auto = ((min(xs) - mx, max(xs) + mx), (min(ys) - my, max(ys) + my))
    sx, sy, ox, oy = emit(out, "automatic", auto, values)
    (lx, hx), (ly, hy) = auto

    # Tenths of the span, inward and outward.
    emit(out, "in", ((lx + 0.1 * sx, hx - 0.1 * sx), (ly + 0.1 * sy, hy - 0.1 * sy)), values)
    emit(out, "out", ((lx - 0.1 * sx, hx + 0.1 * sx), (ly - 0.1 * sy, hy + 0.1 * sy)), values)

    # The rectangle (150, 40)-(60, 200) becomes the view.
    a = ((150 + ox) * sx / W, (40 + oy) * sy / H)
    b = ((60 + ox) * sx / W, (200 + oy) * sy / H)
    emit(out, "rectangle", ((min(a[0], b[0]), max(a[0], b[0])), (min(a[1], b[1]), max(a[1], b[1]))), values)

    # What is in view fits the rectangle (150, 40)-(60, 200): 90 wide, 160 high.
    nx, ny = sx * W / 90, sy * H / 160
    low = (lx - 60 * nx / W, ly - 40 * ny / H)
    emit(out, "into", ((low[0], low[0] + nx), (low[1], low[1] + ny)), values)

    # An arrow: 30 steps. Spans stay, bounds follow from the origin.
    for name, dx, dy in (("left", -30, 0), ("right", 30, 0), ("up", 0, -30), ("down", 0, 30)):
        px, py = ox + dx, oy + dy
        out.append(f"case {name}")
        lowx, lowy = px * sx / W, py * sy / H
        out.append(f"view {lowx!r} {lowx + sx!r} {lowy!r} {lowy + sy!r}")
        out.append(f"origin {px} {py}")
        for i, (x, y) in values:
            out.append(f"at {i} {math.trunc(x / sx * W) - px} {math.trunc(y / sy * H) - py}")
    with open("plot_oracle.txt", "w", encoding="utf-8") as file:
        file.write("\n".join(out) + "\n")


if __name__ == "__main__":
    main()
