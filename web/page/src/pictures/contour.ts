/** The power over two inputs as filled bands, with the lines of equal power labelled. */

import * as Plot from "@observablehq/plot";
import type { Axis } from "./axes";
import { capital, heldFixed, place, shownQuantity, where } from "./caption";
import { compose, element } from "./frame";
import type { Look } from "./frame";
import { labelPlaces, levels, usualPower } from "./labels";
import type { Chart, Test } from "./model";
import { shown } from "./numbers";
import { drawPlot, heightOf, placed } from "./plots";
import type { Placed } from "./plots";
import { crossings } from "./series";
import { endsOf, fewerPoints, outlines, powerAt, surfaceFor } from "./surface";
import type { Surface } from "./surface";
import { sentences, texts } from "./texts";

export interface ContourInput {
  test: Test;
  chart: Chart;
  axes: [Axis, Axis];
  mark: { x: number; y: number; power: number } | null;
}
type Place = (value: number) => number;

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
  const labelled = labelPlaces(surface, look.width - 60, height - 40, mark);
  for (const label of labelled) {
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
  return placed(composed, drawn);
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
