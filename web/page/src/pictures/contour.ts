/** The power over two inputs as filled bands, with the lines of equal power labelled. */

import * as Plot from "@observablehq/plot";
import { contours } from "d3-contour";
import type { Axis } from "./axes";
import { capital, heldFixed, place, shownQuantity, where } from "./caption";
import type { Placed } from "./curve";
import { compose, element } from "./frame";
import type { Look } from "./frame";
import type { Chart, Test } from "./model";
import { shown } from "./numbers";
import { drawPlot, heightOf } from "./plots";
import { crossings, indexBelow, isSaw, leastToCome, surfaceOf } from "./series";
import type { Values } from "./series";
import { sentences, texts } from "./texts";

const usualPower = 0.8;
export const levels = [0.2, 0.5, usualPower, 0.9, 0.95];

/** More points than these make a picture slow, and no smoother. */
const most = { across: 75, up: 60 };

export interface ContourInput {
  test: Test;
  chart: Chart;
  axes: [Axis, Axis];
  mark: { x: number; y: number; power: number } | null;
}

/** The surface on an even grid, a row for each place upwards, and what was done to it. */
export interface Surface {
  x: number[];
  y: number[];
  /** Row by row. */
  values: number[];
  isSmoothed: boolean;
}

const even = (from: number, to: number, count: number) =>
  Array.from({ length: count }, (_, i) => from + ((to - from) * i) / (count - 1));

function endsOf(points: number[]): [number, number] {
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

interface Label {
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

type Place = (value: number) => number;

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

/** The outlines as one path, and without what runs along the edges of the picture. */
function pathsOf(surface: Surface, level: number, toX: Place, toY: Place): { area: string; line: string } {
  const edges = [endsOf(surface.x), endsOf(surface.y)];
  const runsAlongEdge = (a: [number, number], b: [number, number]) =>
    edges.some((ends, i) => a[i as 0 | 1] === b[i as 0 | 1] && ends.includes(a[i as 0 | 1]));
  let area = "";
  let line = "";
  for (const ring of outlines(surface, level)) {
    ring.forEach((at, i) => {
      const place = `${toX(at[0]).toFixed(2)},${toY(at[1]).toFixed(2)}`;
      const before = ring[i - 1];
      area += (before ? "L" : "M") + place;
      line += (before && !runsAlongEdge(before, at) ? "L" : "M") + place;
    });
    area += "Z";
  }
  return { area, line };
}

/** The bands between levels, the higher ones over the lower ones. */
function bands(surface: Surface, look: Look): Plot.RenderFunction {
  const { palette } = look;
  return (_, scales) => {
    const group = element("g", { fill: "none", stroke: palette.contour, "stroke-linejoin": "round" });
    levels.forEach((level, i) => {
      const { area, line } = pathsOf(surface, level, scales["x"] as Place, scales["y"] as Place);
      if (!area) return;
      group.append(element("path", { d: area, fill: palette.bands[i + 1]!, stroke: "none" }));
      group.append(element("path", { d: line, "stroke-width": level === usualPower ? 2.2 : 1 }));
    });
    return group;
  };
}

export function contourPicture(input: ContourInput, look: Look): Placed {
  const { chart, axes, mark, test } = input;
  const { palette, locale } = look;
  const surface = surfaceFor(chart, axes);
  const [x0, x1] = endsOf(surface.x);
  const [y0, y1] = endsOf(surface.y);
  const height = heightOf(look.width);
  const marks: Plot.Markish[] = [
    Plot.rect([0], { x1: x0, x2: x1, y1: y0, y2: y1, fill: palette.bands[0]! }),
    bands(fewerPoints(surface), look),
  ];
  const placed = labelPlaces(surface, look.width - 60, height - 40, mark);
  for (const label of placed) {
    marks.push(
      Plot.text([label], {
        x: "x",
        y: "y",
        text: () => shown(label.level, locale),
        fill: palette.contour,
        stroke: palette.bands[levels.indexOf(label.level)]!,
        strokeWidth: 4,
        fontSize: 12,
        fontWeight: label.level === 0.8 ? 700 : 400,
      }),
    );
  }
  if (mark)
    marks.push(
      Plot.dot([mark], { x: "x", y: "y", r: 6, fill: palette.design, stroke: palette.background, strokeWidth: 1.5 }),
    );
  const drawn = drawPlot({
    look,
    height,
    x: { domain: [x0, x1] },
    y: { domain: [y0, y1], grid: false },
    marks,
  });
  const composed = compose(
    {
      name: `${capital(texts.power)}: ${axes[0].title}, ${axes[1].title}`,
      description: contourSentence(input, surface, locale),
      title: test.title,
      subtitles: heldFixed(test, chart, locale),
      key: mark
        ? [
            {
              symbol: { kind: "dot", fill: palette.design },
              text: `${texts.design}: ${placeOf(input, locale)}, ${texts.power} ${shownQuantity("power", mark.power, locale)}`,
            },
          ]
        : [],
      panels: [{ ...drawn.panel, yTitle: capital(axes[1].title), xTitle: capital(axes[0].title) }],
    },
    look,
  );
  const top = composed.tops[0]!;
  const { scaleX, scaleY } = drawn;
  return {
    ...composed,
    toX: (value) => scaleX.apply(value) as number,
    toY: (value) => top + (scaleY.apply(value) as number),
    fromX: (pixel) => scaleX.invert!(pixel) as number,
    fromY: (pixel) => scaleY.invert!(pixel - top) as number,
  };
}

function placeOf(input: ContourInput, locale: string): string {
  const { axes, mark } = input;
  return mark ? `${place(axes[0], mark.x, locale)}, ${place(axes[1], mark.y, locale)}` : "";
}

/** The picture in words. */
export function contourSentence(input: ContourInput, surface: Surface, locale: string): string {
  const { axes, mark, test } = input;
  const said: string[] = [];
  if (mark) {
    said.push(
      sentences.surfaceDesign(
        `${where(axes[0], mark.x, test, locale)} ${texts.and} ${place(axes[1], mark.y, locale)}`,
        shownQuantity("power", mark.power, locale),
      ),
    );
    const upwards = surface.y.map((y) => powerAt(surface, mark.x, y));
    const reached = crossings(surface.y, upwards, 0.8);
    const nearest = reached.sort((a, b) => Math.abs(a - mark.y) - Math.abs(b - mark.y))[0];
    if (nearest !== undefined) {
      const at = sentences.surfaceIs(axes[1].symbol, shown(nearest, locale, 3));
      said.push(sentences.surface(shown(0.8, locale), where(axes[0], mark.x, test, locale), at));
    }
  }
  said.push(surface.isSmoothed ? texts.smoothed : sentences.surfaceLines);
  return said.join(" ");
}
