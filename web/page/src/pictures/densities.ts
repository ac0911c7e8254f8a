/** The distributions of the test statistic without and with the effect: what level and power are. */

import * as Plot from "@observablehq/plot";
import { capital, piece } from "./caption";
import { compose, textWidth } from "./frame";
import type { Composed, KeyEntry, Look } from "./frame";
import type { Answer, Densities, Test } from "./model";
import { shown, shownPower } from "./numbers";
import { drawPlot, heightOf, roomAbove } from "./plots";
import { valueAt } from "./series";
import { sentences, texts } from "./texts";

export interface DensitiesInput {
  test: Test;
  answer: Answer;
  densities: Densities;
  /** So that the picture stands still while inputs move. */
  domain: [number, number];
}

interface Point {
  x: number;
  without: number;
  with: number;
}

function pointsOf(densities: Densities): Point[] {
  return densities.x.map((x, i) => ({ x, without: densities.without[i]!, with: densities.with[i]! }));
}

export function domainOf(densities: Densities): [number, number] {
  const { x, statistic } = densities;
  if (statistic !== "count") return [x[0]!, x[x.length - 1]!];
  // Counts that hardly ever occur are left out.
  const occurs = (i: number) => densities.without[i]! > 1e-5 || densities.with[i]! > 1e-5;
  let first = 0;
  let last = x.length - 1;
  while (first < last && !occurs(first)) ++first;
  while (last > first && !occurs(last)) --last;
  return [x[first]! - 0.5, x[last]! + 0.5];
}

export function hull(a: [number, number], b: [number, number]): [number, number] {
  return [Math.min(a[0], b[0]), Math.max(a[1], b[1])];
}

/** The points of one tail, to the critical value exactly. */
export function tail(densities: Densities, side: "low" | "high"): Point[] {
  const critical = side === "low" ? densities["rejects-to"] : densities["rejects-from"];
  if (critical === undefined) return [];
  const inside = (x: number) => (side === "low" ? x <= critical : x >= critical);
  const points = pointsOf(densities).filter((point) => inside(point.x));
  if (densities.statistic === "count") return points;
  const edge = {
    x: critical,
    without: valueAt(densities.x, densities.without, critical) ?? 0,
    with: valueAt(densities.x, densities.with, critical) ?? 0,
  };
  return side === "low" ? [...points, edge] : [edge, ...points];
}

/** An F density may grow without limit towards 0: the picture ends where the rest can be seen. */
function highest(densities: Densities): number {
  const withEffect = Math.max(...densities.with);
  const without = Math.max(...densities.without);
  return densities.statistic === "F" ? Math.min(without, 2.5 * withEffect) : Math.max(without, withEffect);
}

function keyOf(densities: Densities, look: Look): KeyEntry[] {
  const { palette, locale } = look;
  const isCount = densities.statistic === "count";
  const without: KeyEntry = {
    symbol: isCount
      ? { kind: "area", fill: palette.background, stroke: palette.ink }
      : { kind: "line", stroke: palette.ink, dash: "7,4", width: 2 },
    text: texts.withoutEffect,
  };
  const withEffect: KeyEntry = {
    symbol: isCount
      ? { kind: "area", fill: palette.missed, stroke: palette.curves[0]! }
      : { kind: "line", stroke: palette.curves[0]!, width: 2.5 },
    text: texts.withEffect,
  };
  return [
    without,
    withEffect,
    { symbol: { kind: "area", fill: palette.level }, text: texts.levelArea(shown(densities.level, locale, 3)) },
    {
      symbol: { kind: "area", fill: palette.power, stroke: palette.curves[0]! },
      text: texts.powerArea(shownPower(densities.power, locale)),
    },
  ];
}

function smoothMarks(densities: Densities, look: Look): Plot.Markish[] {
  const { palette } = look;
  const points = pointsOf(densities);
  const tails = [tail(densities, "low"), tail(densities, "high")].filter((points) => points.length > 1);
  return [
    Plot.areaY(points, { x: "x", y: "with", fill: palette.missed, clip: true }),
    ...tails.map((points) => Plot.areaY(points, { x: "x", y: "with", fill: palette.power, clip: true })),
    ...tails.map((points) => Plot.areaY(points, { x: "x", y: "without", fill: palette.level, clip: true })),
    Plot.line(points, {
      x: "x",
      y: "without",
      stroke: palette.ink,
      strokeWidth: 2,
      strokeDasharray: "7,4",
      clip: true,
    }),
    Plot.line(points, { x: "x", y: "with", stroke: palette.curves[0]!, strokeWidth: 2.5, clip: true }),
  ];
}

/** Bars beside each other: a count has a probability, not a density. */
function countMarks(densities: Densities, domain: [number, number], look: Look): Plot.Markish[] {
  const { palette } = look;
  const points = pointsOf(densities).filter(({ x }) => x >= domain[0] && x <= domain[1]);
  const rejects = (x: number) =>
    x <= (densities["rejects-to"] ?? -Infinity) || x >= (densities["rejects-from"] ?? Infinity);
  const bars = (name: "without" | "with", from: number, to: number, filled: string, empty: string, stroke: string) =>
    Plot.rect(points, {
      x1: (point: Point) => point.x + from,
      x2: (point: Point) => point.x + to,
      y1: 0,
      y2: name,
      fill: (point: Point) => (rejects(point.x) ? filled : empty),
      stroke,
      strokeWidth: 1,
    });
  return [
    bars("without", -0.42, 0, palette.level, palette.background, palette.ink),
    bars("with", 0, 0.42, palette.power, palette.missed, palette.curves[0]!),
  ];
}

interface Critical {
  at: number;
  text: string;
  anchor: "start" | "end";
}

/** A label stands beside its line, outwards where there is room. */
function criticalsOf(densities: Densities, domain: [number, number], look: Look): Critical[] {
  const { statistic } = densities;
  const isCount = statistic === "count";
  const perPixel = (domain[1] - domain[0]) / (look.width - 32);
  const found: Critical[] = [];
  for (const side of ["rejects-to", "rejects-from"] as const) {
    const value = densities[side];
    if (value === undefined) continue;
    const isLow = side === "rejects-to";
    const number = shown(value, look.locale, 4);
    const text = isCount ? `${isLow ? "≤" : "≥"} ${number}` : `${texts.statisticShort[statistic]} = ${number}`;
    const room = (textWidth(text, 12, look.font) + 10) * perPixel;
    const fitsLeft = value - domain[0] > room;
    const fitsRight = domain[1] - value > room;
    const anchor = (isLow ? fitsLeft : !fitsRight) ? "end" : "start";
    found.push({ at: isCount ? value + (isLow ? 0.5 : -0.5) : value, text, anchor });
  }
  return found;
}

function criticalMarks(criticals: Critical[], look: Look, height: number): Plot.Markish[] {
  const { palette } = look;
  const label = (anchor: "start" | "end") =>
    Plot.text(
      criticals.filter((critical) => critical.anchor === anchor),
      {
        x: "at",
        y: height,
        text: "text",
        textAnchor: anchor,
        dx: anchor === "end" ? -6 : 6,
        dy: 8,
        fill: palette.ink,
        stroke: palette.background,
        strokeWidth: 4,
        fontSize: 12,
      },
    );
  return [
    Plot.ruleX(criticals, { x: "at", stroke: palette.ink, strokeWidth: 1.2, strokeDasharray: "2,3" }),
    label("start"),
    label("end"),
  ];
}

export function densitiesPicture(input: DensitiesInput, look: Look): Composed {
  const { densities, domain, test, answer } = input;
  const isCount = densities.statistic === "count";
  const top = roomAbove([highest(densities)]) * 1.08;
  const drawn = drawPlot({
    look,
    height: heightOf(look.width),
    x: { domain },
    y: { domain: [0, top] },
    hasYAxis: false,
    marks: [
      ...(isCount ? countMarks(densities, domain, look) : smoothMarks(densities, look)),
      ...criticalMarks(criticalsOf(densities, domain, look), look, top),
    ],
  });
  const { n } = answer.results;
  const fixed = Object.entries(n === undefined ? answer.inputs : { ...answer.inputs, n })
    .map(([name, value]) => piece(test, name.replace(/^target-/, ""), value, "power", look.locale))
    .filter((words) => words !== "");
  return compose(
    {
      name: `${capital(texts.statistic[densities.statistic])}: ${texts.withoutEffect}, ${texts.withEffect}`,
      description: densitiesSentence(densities, look.locale),
      title: test.title,
      subtitles: fixed,
      key: keyOf(densities, look),
      panels: [{ ...drawn.panel, xTitle: capital(texts.statistic[densities.statistic]) }],
    },
    look,
  );
}

/** Where the test rejects, in words. */
export function whereRejected(densities: Densities, locale: string): string {
  const low = densities["rejects-to"];
  const high = densities["rejects-from"];
  const words = (value: number) => shown(value, locale, 4);
  const isCount = densities.statistic === "count";
  if (low !== undefined && high !== undefined) {
    return isCount ? sentences.countBoth(words(low), words(high)) : sentences.beyondBoth(words(low), words(high));
  }
  if (high !== undefined) return isCount ? sentences.countAbove(words(high)) : sentences.above(words(high));
  if (low !== undefined) return isCount ? sentences.countBelow(words(low)) : sentences.below(words(low));
  return "";
}

export function densitiesSentence(densities: Densities, locale: string): string {
  return sentences.densities(
    texts.statistic[densities.statistic],
    whereRejected(densities, locale),
    densities.level,
    densities.power,
  );
}
