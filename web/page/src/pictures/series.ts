/** Reading values off the points of a chart. */

import type { Chart, ChartCurve } from "./model";

export type Values = (number | null)[];

export function valuesOf(chart: Chart, curve: ChartCurve): Values {
  return curve[chart.quantity] as Values;
}

export function surfaceOf(chart: Chart): Values[] {
  return chart.curves[0]![chart.quantity]! as Values[];
}

/** The place in an ascending list before which `at` does not lie. */
export function indexBelow(points: number[], at: number): number {
  let low = 0;
  let high = points.length - 1;
  while (low < high) {
    const middle = (low + high + 1) >> 1;
    if (points[middle]! <= at) low = middle;
    else high = middle - 1;
  }
  return low;
}

export function nearestIndex(points: number[], at: number): number {
  const below = indexBelow(points, at);
  if (below + 1 >= points.length) return below;
  return at - points[below]! <= points[below + 1]! - at ? below : below + 1;
}

/** By interpolation; null in a gap and outside. */
export function valueAt(points: number[], values: Values, at: number): number | null {
  if (!points.length || at < points[0]! || at > points[points.length - 1]!) return null;
  const below = indexBelow(points, at);
  const first = values[below] ?? null;
  if (points[below]! === at || below + 1 >= points.length) return first;
  const second = values[below + 1] ?? null;
  if (first === null || second === null) return null;
  return first + ((second - first) * (at - points[below]!)) / (points[below + 1]! - points[below]!);
}

/** The first point from which on the values stay at or above a level; null where they never do. */
export function staysFrom(points: number[], values: Values, level: number): number | null {
  let found: number | null = null;
  for (let i = points.length - 1; i >= 0; --i) {
    const value = values[i] ?? null;
    if (value === null || value < level) break;
    found = points[i]!;
  }
  return found;
}

/** Where a line through the points crosses a level, in their order. */
export function crossings(points: number[], values: Values, level: number): number[] {
  const found: number[] = [];
  for (let i = 0; i + 1 < points.length; ++i) {
    const a = values[i] ?? null;
    const b = values[i + 1] ?? null;
    if (a === null || b === null || a < level === b < level) continue;
    found.push(points[i]! + ((points[i + 1]! - points[i]!) * (level - a)) / (b - a));
  }
  return found;
}

const toothHeight = 0.005;

/** True where values go up and down like the teeth of a saw, as the power of an exact test does. */
export function isSaw(values: Values): boolean {
  let turns = 0;
  let direction = 0;
  let extreme: number | null = null;
  for (const value of values) {
    if (value === null) continue;
    if (extreme === null) extreme = value;
    const change = value - extreme;
    const way = change > toothHeight ? 1 : change < -toothHeight ? -1 : 0;
    if (way !== 0 && direction !== 0 && way !== direction) ++turns;
    if (way !== 0) direction = way;
    const goesOn = direction >= 0 ? value > extreme : value < extreme;
    if (way !== 0 || goesOn) extreme = value;
  }
  return turns > 3;
}

/** The least that is still to come, from each point on: where a value is reached to last. */
export function leastToCome(values: Values): Values {
  const least = [...values];
  for (let i = least.length - 2; i >= 0; --i) {
    const here = least[i] ?? null;
    const next = least[i + 1] ?? null;
    if (here !== null && next !== null && next < here) least[i] = next;
  }
  return least;
}
