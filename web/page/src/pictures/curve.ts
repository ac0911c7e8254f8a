/** The power, half-width or sample size along one input, with a curve for each alternative. */

import * as Plot from "@observablehq/plot";
import type { Axis } from "./axes";
import { amount, capital, curveLabel, heldFixed, markText, shownQuantity, where } from "./caption";
import { compose } from "./frame";
import type { KeyEntry, Look } from "./frame";
import { usualPower } from "./labels";
import type { Chart, ChartCurve, Test } from "./model";
import { shown } from "./numbers";
import { curveColour, curveDash } from "./palette";
import { drawPlot, heightOf, placed, powerTicks, roomAbove } from "./plots";
import type { Placed } from "./plots";
import { isSaw, staysFrom, valueAt, valuesOf } from "./series";
import { sentences, texts } from "./texts";

export interface Mark {
  x: number;
  y: number;
}

export interface CurveInput {
  test: Test;
  chart: Chart;
  axis: Axis;
  /** Where the design is now, of the only curve; it may have been moved since the chart was drawn. */
  mark: Mark | null;
  target: number | null;
  /** The sizes, where the sizes that are needed are drawn along another input. */
  sizes: Axis | null;
}

export function markOf(chart: Chart, curve: ChartCurve): Mark | null {
  const y = curve.design?.[chart.quantity];
  const at = curve.design?.at;
  return at && typeof y === "number" ? { x: at[0]!, y } : null;
}

interface Point {
  x: number;
  y: number;
}

/** Gaps stay gaps. */
function pointsOf(chart: Chart, curve: ChartCurve): Point[] {
  return valuesOf(chart, curve).map((value, i) => ({ x: chart.x[i]!, y: value ?? NaN }));
}

/** A size that was found for one curve may lie far above the others: the picture shows what the curves have in common. */
function valueDomain(chart: Chart, mark: Mark | null, target: number | null): [number, number] {
  if (chart.quantity === "power") return [0, 1];
  const all = chart.curves.flatMap((curve) =>
    valuesOf(chart, curve).filter((value): value is number => value !== null),
  );
  const sorted = [...all].sort((a, b) => a - b);
  const usual = sorted[Math.floor(0.97 * (sorted.length - 1))] ?? 1;
  return [0, roomAbove([usual, mark?.y ?? 0, target ?? 0])];
}

function keyOf(input: CurveInput, look: Look): KeyEntry[] {
  const { chart, axis, mark, target, test } = input;
  const { palette, locale } = look;
  const isSingle = chart.curves.length === 1;
  const key: KeyEntry[] = [];
  if (!isSingle) {
    chart.curves.forEach((curve, i) => {
      const stroke = curveColour(palette, i);
      key.push({ symbol: { kind: "line", stroke, dash: curveDash(i) }, text: curveLabel(test, chart, curve, locale) });
    });
  }
  if (isSingle && mark) {
    const text = `${texts.design}: ${markText(axis, mark.x, chart.quantity, mark.y, locale)}`;
    key.push({ symbol: { kind: "dot", fill: palette.design }, text });
  } else if (!isSingle && chart.curves.some((curve) => markOf(chart, curve))) {
    key.push({ symbol: { kind: "dot", fill: palette.design }, text: texts.designs });
  }
  if (target !== null) {
    const text = `${texts.target}: ${texts.quantity[chart.quantity]} ${shown(target, locale, 6)}`;
    key.push({ symbol: { kind: "line", stroke: palette.reference, dash: "6,4", width: 1.5 }, text });
  }
  return key;
}

function marksOf(input: CurveInput, look: Look, domain: [number, number]): Plot.Markish[] {
  const { chart, mark, target } = input;
  const { palette } = look;
  const marks: Plot.Markish[] = [];
  if (target === null && chart.quantity === "power") {
    marks.push(Plot.ruleY([usualPower], { stroke: palette.reference }));
  }
  if (target !== null)
    marks.push(Plot.ruleY([target], { stroke: palette.reference, strokeWidth: 1.5, strokeDasharray: "6,4" }));
  if (mark) {
    const guide = { stroke: palette.design, strokeWidth: 1, strokeDasharray: "2,3" };
    marks.push(Plot.link([mark], { x1: "x", x2: "x", y1: domain[0], y2: "y", ...guide }));
    if (target === null) marks.push(Plot.link([mark], { x1: chart.x[0]!, x2: "x", y1: "y", y2: "y", ...guide }));
  }
  chart.curves.forEach((curve, i) => {
    marks.push(
      Plot.line(pointsOf(chart, curve), {
        x: "x",
        y: "y",
        stroke: curveColour(palette, i),
        strokeWidth: 2.5,
        strokeDasharray: chart.curves.length > 1 ? curveDash(i) : "none",
        strokeLinejoin: "round",
        clip: chart.quantity !== "power",
      }),
    );
  });
  const dots = mark
    ? [mark]
    : chart.curves.map((curve) => markOf(chart, curve)).filter((one): one is Mark => one !== null);
  marks.push(
    Plot.dot(dots, { x: "x", y: "y", r: 6, fill: palette.design, stroke: palette.background, strokeWidth: 1.5 }),
  );
  return marks;
}

/** Sizes have the title of their axis, which tells what is counted. */
function valueTitle({ chart, sizes }: CurveInput): string {
  return chart.quantity === "sample-size" && sizes ? sizes.title : texts.quantityTitle[chart.quantity];
}

export function curvePicture(input: CurveInput, look: Look): Placed {
  const { chart, mark, target, test } = input;
  const domain = valueDomain(chart, mark, target);
  const drawn = drawPlot({
    look,
    height: heightOf(look.width),
    x: { domain: [chart.x[0]!, chart.x[chart.x.length - 1]!] },
    y: { domain, ticks: chart.quantity === "power" ? powerTicks : undefined },
    marks: marksOf(input, look, domain),
  });
  const quantity = capital(valueTitle(input));
  const composed = compose(
    {
      name: `${quantity}: ${chart.axes[0]!.title}`,
      description: curveSentence(input, look.locale),
      title: test.title,
      subtitles: heldFixed(test, chart, look.locale),
      key: keyOf(input, look),
      panels: [{ ...drawn.panel, yTitle: quantity, xTitle: capital(chart.axes[0]!.title) }],
    },
    look,
  );
  return placed(composed, drawn);
}

/** Another level of power worth knowing: the next usual one above the design's. */
function nextLevel(power: number): number | null {
  return [0.8, 0.9, 0.95].find((level) => level > power + 0.02) ?? null;
}

function powerSentence(input: CurveInput, locale: string): string {
  const { chart, axis, mark, test } = input;
  const values = valuesOf(chart, chart.curves[0]!);
  if (!mark) return "";
  const said = [sentences.powerAt(where(axis, mark.x, test, locale), mark.y, shownQuantity("power", mark.y, locale))];
  if (axis.isOfSizes) {
    const half = Math.round(mark.x / 2);
    const atHalf = valueAt(chart.x, values, half);
    if (atHalf !== null && half > 1)
      said.push(sentences.half(where(axis, half, test, locale), shownQuantity("power", atHalf, locale)));
    const level = nextLevel(mark.y);
    if (level !== null) {
      const from = staysFrom(chart.x, values, level);
      const shownLevel = shown(level, locale);
      if (from === null) said.push(sentences.notReached(shownLevel));
      else if (isSaw(values)) said.push(sentences.reachesLast(shownLevel, amount(axis, from, test, locale)));
      else said.push(sentences.reaches(shownLevel, amount(axis, from, test, locale)));
    }
  } else {
    const last = chart.x.length - 1;
    const other =
      Math.abs(mark.x - chart.x[0]!) > Math.abs(chart.x[last]! - mark.x)
        ? Math.floor(last / 4)
        : Math.ceil((3 * last) / 4);
    const value = values[other] ?? null;
    if (value !== null)
      said.push(sentences.slope(where(axis, chart.x[other]!, test, locale), shownQuantity("power", value, locale)));
  }
  return said.join(" ");
}

function otherSentence(input: CurveInput, locale: string): string {
  const { chart, axis, mark, test, sizes } = input;
  if (!mark) return "";
  const values = valuesOf(chart, chart.curves[0]!);
  const isWidth = chart.quantity === "half-width";
  const inWords = (value: number) =>
    !isWidth && sizes ? amount(sizes, Math.round(value), test, locale) : shownQuantity(chart.quantity, value, locale);
  const here = inWords(mark.y);
  const said = [
    isWidth
      ? sentences.halfWidthAt(where(axis, mark.x, test, locale), here)
      : sentences.sizeAt(where(axis, mark.x, test, locale), here),
  ];
  for (const factor of axis.isOfSizes ? [4, 2] : [0.8, 1.25]) {
    const x = axis.limits.whole ? Math.round(factor * mark.x) : Number((factor * mark.x).toPrecision(3));
    const value = valueAt(chart.x, values, x);
    if (value === null || x === mark.x) continue;
    const words = inWords(value);
    const there = where(axis, x, test, locale);
    if (!isWidth) said.push(sentences.sizeElse(there, words));
    else said.push(axis.isOfSizes && factor === 4 ? sentences.fourTimes(there, words) : sentences.twice(there, words));
    break;
  }
  return said.join(" ");
}

/** The picture in words. */
export function curveSentence(input: CurveInput, locale: string): string {
  const { chart, axis, test } = input;
  if (chart.curves.length > 1) {
    const varied = test.parameters.find((parameter) => parameter.name === chart.varied)?.label ?? chart.varied ?? "";
    const said = [sentences.curvesOf(texts.quantity[chart.quantity]!, chart.axes[0]!.title, varied)];
    for (const curve of chart.curves) {
      const mark = markOf(chart, curve);
      if (!mark) continue;
      const value = `${texts.quantity[chart.quantity]} ${shownQuantity(chart.quantity, mark.y, locale)}`;
      said.push(
        sentences.curve(capital(curveLabel(test, chart, curve, locale)), amount(axis, mark.x, test, locale), value),
      );
    }
    return said.join(" ");
  }
  return chart.quantity === "power" ? powerSentence(input, locale) : otherSentence(input, locale);
}
