/** Half-widths as intervals on the scale of the data, of the design and of smaller and larger ones. */

import * as Plot from "@observablehq/plot";
import type { Axis } from "./axes";
import { capital, heldFixed, place, where } from "./caption";
import { compose } from "./frame";
import type { Composed, Look } from "./frame";
import type { Chart, Test } from "./model";
import { shown } from "./numbers";
import { drawPlot } from "./plots";
import { nearestIndex, valuesOf } from "./series";
import { sentences, texts } from "./texts";

export interface IntervalInput {
  test: Test;
  /** Of the half-width along the sizes. */
  chart: Chart;
  axis: Axis;
  mark: { x: number; y: number };
  target: number | null;
}

export interface Bar {
  size: number;
  halfWidth: number;
  isDesign: boolean;
}

/** A quarter, half, double and four times the design, as far as the chart goes. */
export function barsOf(input: IntervalInput): Bar[] {
  const { chart, mark } = input;
  const values = valuesOf(chart, chart.curves[0]!);
  const bars: Bar[] = [{ size: mark.x, halfWidth: mark.y, isDesign: true }];
  for (const factor of [0.25, 0.5, 2, 4]) {
    const wanted = factor * mark.x;
    const at = nearestIndex(chart.x, wanted);
    const halfWidth = values[at] ?? null;
    const isThere = Math.abs(chart.x[at]! - wanted) < 0.1 * wanted;
    if (!isThere || halfWidth === null || bars.some(({ size }) => size === chart.x[at])) continue;
    bars.push({ size: chart.x[at]!, halfWidth, isDesign: false });
  }
  return bars.sort((a, b) => a.size - b.size);
}

/** A standard deviation tells how long an interval is. */
function standardDeviation(chart: Chart): number | null {
  const { sd } = chart.curves[0]!.inputs;
  if (typeof sd === "number") return sd;
  return Array.isArray(sd) && typeof sd[0] === "number" && sd.every((entry) => entry === sd[0]) ? sd[0] : null;
}

const rowHeight = 50;

export function intervalPicture(input: IntervalInput, look: Look): Composed {
  const { chart, axis, test, target } = input;
  const { palette, locale } = look;
  const bars = barsOf(input);
  const sd = standardDeviation(chart);
  const widest = Math.max(...bars.map(({ halfWidth }) => halfWidth), target ?? 0);
  const isSdShown = sd !== null && sd < 4 * widest && sd > 0.15 * widest;
  const rows = bars.map((bar, i) => ({ ...bar, row: bars.length - i - 0.5 + (isSdShown ? 0.75 : 0) }));
  const top = bars.length + (isSdShown ? 0.75 : 0);
  const reach = 1.08 * Math.max(widest, isSdShown ? sd! / 2 : 0);
  const colour = (bar: Bar) => (bar.isDesign ? palette.design : palette.reference);
  const text = (bar: Bar) => `${place(axis, bar.size, locale)}:  ± ${shown(bar.halfWidth, locale)}`;
  const halo = { stroke: palette.background, strokeWidth: 5, fontSize: 12 };
  const marks: Plot.Markish[] = [
    Plot.ruleX([0], { stroke: palette.grid }),
    ...[-1, 1].map((side) => Plot.ruleX(target === null ? [] : rows, targetAt(side, target ?? 0, palette.reference))),
    ...[false, true].map((isDesign) =>
      Plot.link(
        rows.filter((bar) => bar.isDesign === isDesign),
        {
          x1: (bar: Bar) => -bar.halfWidth,
          x2: "halfWidth",
          y1: "row",
          y2: "row",
          stroke: colour({ isDesign } as Bar),
          strokeWidth: isDesign ? 4 : 2.5,
        },
      ),
    ),
    ...[-1, 1].map((side) => Plot.ruleX(rows, endAt(side, colour))),
    Plot.dot(rows, { x: 0, y: "row", r: (bar: Bar) => (bar.isDesign ? 5.5 : 4), fill: (bar: Bar) => colour(bar) }),
    Plot.text(rows, { x: 0, y: "row", dy: -17, text, fill: palette.ink, ...halo }),
  ];
  if (isSdShown) {
    const line = [{ from: -sd! / 2, to: sd! / 2 }];
    marks.push(
      Plot.link(line, {
        x1: "from",
        x2: "to",
        y1: 0.3,
        y2: 0.3,
        stroke: palette.curves[0],
        strokeWidth: 2,
        markerStart: "arrow-reverse",
        markerEnd: "arrow",
      } as Plot.LinkOptions),
      Plot.text(line, {
        x: 0,
        y: 0.3,
        dy: -11,
        text: () => `${texts.oneSd}: ${shown(sd!, locale)}`,
        fill: palette.ink,
        ...halo,
      }),
    );
  }
  const drawn = drawPlot({
    look,
    height: Math.round(rowHeight * top + 46),
    x: { domain: [-reach, reach] },
    y: { domain: [0, top + 0.15] },
    hasYAxis: false,
    marks,
  });
  const key = [{ symbol: { kind: "line" as const, stroke: palette.design, width: 4 }, text: texts.thisDesign }];
  if (target !== null) {
    key.push({
      symbol: { kind: "line" as const, stroke: palette.reference, dash: "6,4", width: 1.5 } as never,
      text: `${texts.target}: ${texts.halfWidth} ${shown(target, locale)}`,
    });
  }
  return compose(
    {
      name: `${capital(texts.quantityTitle["half-width"])}: ${axis.title}`,
      description: intervalSentence(input, locale),
      title: test.title,
      subtitles: heldFixed(test, chart, locale),
      key,
      panels: [{ ...drawn.panel, xTitle: capital(texts.middle) }],
    },
    look,
  );
}

/** How far the intervals may reach; short, so that it crosses no text. */
function targetAt(side: number, target: number, stroke: string): Plot.RuleXOptions {
  const options = {
    x: side * target,
    y1: (bar: Bar & { row: number }) => bar.row - 0.3,
    y2: (bar: Bar & { row: number }) => bar.row + 0.3,
    stroke,
    strokeWidth: 1.5,
    strokeDasharray: "4,3",
  };
  return options as unknown as Plot.RuleXOptions;
}

/** The ends of the intervals. */
function endAt(side: number, colour: (bar: Bar) => string): Plot.RuleXOptions {
  const options = {
    x: (bar: Bar) => side * bar.halfWidth,
    y1: (bar: Bar & { row: number }) => bar.row - 0.14,
    y2: (bar: Bar & { row: number }) => bar.row + 0.14,
    stroke: colour,
    strokeWidth: 2.5,
  };
  return options as unknown as Plot.RuleXOptions;
}

export function intervalSentence(input: IntervalInput, locale: string): string {
  const { chart, axis, mark, test } = input;
  const { alpha } = chart.curves[0]!.inputs;
  const confidence = shown(100 * (1 - (typeof alpha === "number" ? alpha : 0.05)), locale, 6);
  return `${sentences.interval(where(axis, mark.x, test, locale), shown(mark.y, locale), confidence)} ${sentences.intervalRule}`;
}
