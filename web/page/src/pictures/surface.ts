/** The power over two inputs as a surface on an even grid. */

import { contours } from "d3-contour";
import type { Axis } from "./axes";
import type { Chart } from "./model";
import { indexBelow, isSaw, leastToCome, surfaceOf } from "./series";
import type { Values } from "./series";

/** More points than these make a picture slow, and no smoother. */
const most = { across: 75, up: 60 };
/** The surface on an even grid, a row for each place upwards, and what was done to it. */
export interface Surface {
  x: number[];
  y: number[];
  /** Row by row. */
  values: number[];
  isSmoothed: boolean;
}

export const even = (from: number, to: number, count: number) =>
  Array.from({ length: count }, (_, i) => from + ((to - from) * i) / (count - 1));

export function endsOf(points: number[]): [number, number] {
  return [points[0]!, points[points.length - 1]!];
}

function isEven(points: number[]): boolean {
  const step = (points[points.length - 1]! - points[0]!) / (points.length - 1);
  return points.every((point, i) => Math.abs(point - points[0]! - i * step) < 1e-6 * Math.abs(step));
}

function along(points: number[], columns: Values[], at: number): Values {
  const below = Math.min(indexBelow(points, at), points.length - 2);
  const share = (at - points[below]!) / (points[below + 1]! - points[below]!);
  return columns[below]!.map((low, j) => {
    const high = columns[below + 1]![j]!;
    return low === null || high === null ? null : low + share * (high - low);
  });
}

/** An exact test's power jumps along the sizes: there the least power still to come takes its place. */
export function surfaceFor(chart: Chart, axes: Axis[]): Surface {
  let columns = surfaceOf(chart);
  const y = chart.y ?? [];
  const rows = y.map((_, j) => columns.map((column) => column[j] ?? null));
  const isSmoothed = axes[0]!.isOfSizes && 4 * rows.filter(isSaw).length > rows.length;
  if (isSmoothed) {
    const lasting = rows.map(leastToCome);
    columns = columns.map((_, i) => lasting.map((row) => row[i]!));
  }
  const x = isEven(chart.x) ? chart.x : even(chart.x[0]!, chart.x[chart.x.length - 1]!, chart.x.length);
  if (x !== chart.x) columns = x.map((at) => along(chart.x, columns, at));
  const values = y.flatMap((_, j) => columns.map((column) => column[j] ?? NaN));
  return { x, y, values, isSmoothed };
}

export function powerAt(surface: Surface, x: number, y: number): number | null {
  const columns = surface.x.length;
  const rowAt = (j: number) => {
    const below = Math.min(indexBelow(surface.x, x), columns - 2);
    const [first, second] = [surface.values[j * columns + below]!, surface.values[j * columns + below + 1]!];
    const [from, to] = [surface.x[below]!, surface.x[below + 1]!];
    if (x < from || x > to || Number.isNaN(x === to ? second : first)) return null;
    if (x === from) return first;
    return x === to ? second : Number.isNaN(second) ? null : first + ((second - first) * (x - from)) / (to - from);
  };
  const below = indexBelow(surface.y, y);
  if (y < surface.y[0]! || y > surface.y[surface.y.length - 1]!) return null;
  const first = rowAt(below);
  if (surface.y[below] === y || below + 1 >= surface.y.length || first === null) return first;
  const second = rowAt(below + 1);
  return second === null
    ? null
    : first + ((second - first) * (y - surface.y[below]!)) / (surface.y[below + 1]! - surface.y[below]!);
}

/** The surface on fewer points, where it has more than a picture needs. */
export function fewerPoints(surface: Surface): Surface {
  const thinned = (points: number[], count: number) =>
    points.length > count ? even(...endsOf(points), count) : points;
  const x = thinned(surface.x, most.across);
  const y = thinned(surface.y, most.up);
  if (x === surface.x && y === surface.y) return surface;
  const values = y.flatMap((up) => x.map((across) => powerAt(surface, across, up) ?? NaN));
  return { ...surface, x, y, values };
}

/** The outlines of the areas above a level, on the scales of the surface. The points of the grid are middles of cells. */
export function outlines(surface: Surface, level: number): [number, number][][] {
  const along = (points: number[]) => {
    const [from, to] = endsOf(points);
    const last = points.length - 1;
    return (at: number) => from + ((to - from) * Math.min(last, Math.max(0, at - 0.5))) / last;
  };
  const [x, y] = [along(surface.x), along(surface.y)];
  const { coordinates } = contours().size([surface.x.length, surface.y.length]).contour(surface.values, level);
  return coordinates.flat().map((ring) => ring.map((at) => [x(at[0]!), y(at[1]!)]));
}
