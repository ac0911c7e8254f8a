/** Where the lines of equal power have their labels. */

import { crossings } from "./series";
import { endsOf, even, powerAt } from "./surface";
import type { Surface } from "./surface";

export const usualPower = 0.8;
export const levels = [0.2, 0.5, usualPower, 0.9, 0.95];

export interface Label {
  x: number;
  y: number;
  level: number;
}

/** Straight ways across the picture, in shares of its width and height. */
const transects: [number, number, number, number][] = [
  [0, 0.04, 1, 0.96],
  [0, 0.96, 1, 0.04],
  [0.04, 0.55, 0.96, 0.55],
  [0.04, 0.75, 0.96, 0.75],
  [0.04, 0.3, 0.96, 0.3],
  [0.6, 0.04, 0.6, 0.96],
  [0.35, 0.04, 0.35, 0.96],
  [0.85, 0.04, 0.85, 0.96],
];

const least = { across: 40, up: 18 };

/** Labels on the lines, along the way across the picture that has room for most of them. */
export function labelPlaces(
  surface: Surface,
  width: number,
  height: number,
  avoid: { x: number; y: number } | null,
): Label[] {
  const [x0, x1] = endsOf(surface.x);
  const [y0, y1] = endsOf(surface.y);
  const pixel = (at: { x: number; y: number }) => ({
    x: ((at.x - x0) / (x1 - x0)) * width,
    y: ((at.y - y0) / (y1 - y0)) * height,
  });
  const isFree = (at: { x: number; y: number }, taken: { x: number; y: number }[]) => {
    const here = pixel(at);
    if (here.x < 22 || here.x > width - 22 || here.y < 12 || here.y > height - 12) return false;
    return taken.every((other) => {
      const there = pixel(other);
      return Math.abs(here.x - there.x) > least.across || Math.abs(here.y - there.y) > least.up;
    });
  };
  let best: Label[] = [];
  for (const [ax, ay, bx, by] of transects) {
    const shares = even(0, 1, 200);
    const at = (share: number) => ({
      x: x0 + (x1 - x0) * (ax + (bx - ax) * share),
      y: y0 + (y1 - y0) * (ay + (by - ay) * share),
    });
    const values = shares.map((share) => powerAt(surface, at(share).x, at(share).y));
    const placed: Label[] = [];
    for (const level of [0.8, 0.5, 0.9, 0.2, 0.95]) {
      const taken = avoid ? [...placed, avoid] : placed;
      const free = crossings(shares, values, level)
        .map(at)
        .find((place) => isFree(place, taken));
      if (free) placed.push({ ...free, level });
    }
    if (placed.length > best.length) best = placed;
  }
  return best;
}
