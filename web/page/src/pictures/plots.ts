/** What all plots share: margins, axes, grid and fonts. */

import * as Plot from "@observablehq/plot";
import { shown } from "./numbers";
import { textWidth } from "./frame";
import type { Composed, Look, Panel } from "./frame";

export const tickSize = 12;
const marginTop = 10;
const marginBottom = 26;

export function heightOf(width: number): number {
  return Math.round(Math.min(400, Math.max(230, 0.55 * width)));
}

/** A number of ticks that leaves room for their texts. */
export function ticksFor(width: number, widest: string): number {
  return Math.max(2, Math.min(9, Math.floor(width / (textWidth(widest, tickSize, "sans-serif") + 34))));
}

export interface PlotParts {
  look: Look;
  height: number;
  x: { domain: [number, number] };
  y: { domain: [number, number]; ticks?: number[] | undefined; grid?: boolean };
  marks: Plot.Markish[];
  marginLeft?: number;
  hasYAxis?: boolean;
  hasXAxis?: boolean;
}

/** Texts of the ticks of an axis, and the room that they take. */
function marginFor(
  domain: [number, number],
  ticks: number[] | undefined,
  format: (value: number) => string,
  font: string,
): number {
  const samples = ticks ?? [domain[0], domain[1], (domain[0] + domain[1]) / 2, domain[1] * 0.95];
  const widest = Math.max(...samples.map((value) => textWidth(format(Number(value.toPrecision(2))), tickSize, font)));
  return Math.ceil(widest) + 16;
}

interface Drawn {
  plot: SVGSVGElement;
  panel: Omit<Panel, "xTitle" | "yTitle">;
  scaleX: Plot.Scale;
  scaleY: Plot.Scale;
}

/** A picture that tells where values lie, in the pixels of the whole. */
export interface Placed extends Composed {
  toX(value: number): number;
  toY(value: number): number;
  fromX(pixel: number): number;
  fromY(pixel: number): number;
}

/** The picture with the scales of its first plot. */
export function placed(composed: Composed, { scaleX, scaleY }: Drawn): Placed {
  const top = composed.tops[0]!;
  return {
    ...composed,
    toX: (value) => scaleX.apply(value) as number,
    toY: (value) => top + (scaleY.apply(value) as number),
    fromX: (pixel) => scaleX.invert!(pixel) as number,
    fromY: (pixel) => scaleY.invert!(pixel - top) as number,
  };
}

export function drawPlot(parts: PlotParts): Drawn {
  const { look, height, x, y } = parts;
  const { palette, locale, width, font } = look;
  const format = (value: number) => shown(value, locale, 6);
  const hasYAxis = parts.hasYAxis ?? true;
  const ends = x.domain.map((end) => format(Number(end.toPrecision(2))));
  const widest = ends.reduce((a, b) => (b.length > a.length ? b : a));
  // The first and the last tick may stand at the very ends.
  const halfText = Math.ceil(textWidth(widest, tickSize, font) / 2) + 2;
  const marginRight = Math.max(18, halfText);
  const roomLeft = hasYAxis ? Math.max(36, marginFor(y.domain, y.ticks, format, font)) : 14;
  const marginLeft = parts.marginLeft ?? Math.max(roomLeft, halfText);
  const across = width - marginLeft - marginRight;
  const ticksX = ticksFor(across, widest.length > 3 ? widest : "000");
  const axisStyle = { stroke: palette.frame, fill: palette.ink, color: palette.frame, label: null, fontSize: tickSize };
  const ticksY = y.ticks ?? (height < 150 ? 3 : 5);
  const marks: Plot.Markish[] = [];
  if (hasYAxis && (y.grid ?? true)) marks.push(Plot.gridY({ ticks: ticksY, stroke: palette.grid, strokeOpacity: 1 }));
  marks.push(...parts.marks);
  if (hasYAxis) {
    marks.push(
      Plot.axisY({
        ...axisStyle,
        stroke: "none",
        ticks: ticksY,
        tickFormat: format,
        tickSize: 0,
        tickPadding: 6,
      }),
    );
  }
  if (parts.hasXAxis ?? true)
    marks.push(Plot.axisX({ ...axisStyle, stroke: "none", ticks: ticksX, tickFormat: format, tickSize: 5 }));
  marks.push(Plot.ruleY([y.domain[0]], { stroke: palette.frame, strokeWidth: 1 }));
  const plot = Plot.plot({
    width,
    height,
    marginLeft,
    marginRight,
    marginTop,
    marginBottom: (parts.hasXAxis ?? true) ? marginBottom : 8,
    x: { domain: x.domain, label: null, axis: null },
    y: { domain: y.domain, label: null, axis: null },
    marks,
  }) as unknown as SVGSVGElement & { scale(name: string): Plot.Scale };
  const panel = { plot, width, height, left: marginLeft, right: width - marginRight };
  return { plot, panel, scaleX: plot.scale("x"), scaleY: plot.scale("y") };
}

/** A little more room above the highest value, to a round number. */
export function roomAbove(values: Iterable<number>): number {
  let highest = 0;
  for (const value of values) if (value > highest) highest = value;
  return highest > 0 ? highest * 1.06 : 1;
}

export const powerTicks = [0, 0.2, 0.4, 0.6, 0.8, 1];
