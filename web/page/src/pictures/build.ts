/** From what was loaded to a picture, its sentence and its numbers. */

import { contourPicture, contourSentence } from "./contour";
import { curvePicture, curveSentence, markOf } from "./curve";
import type { Mark } from "./curve";
import { densitiesPicture, densitiesSentence } from "./densities";
import type { Composed, Look } from "./frame";
import { barsOf, intervalPicture, intervalSentence } from "./interval";
import type { Loaded } from "./load";
import type { Densities, Inputs, Test } from "./model";
import { numbersOfBars, numbersOfCurves, numbersOfDensities, numbersOfSaw, numbersOfSurface } from "./numbers_of";
import type { NumbersTable } from "./numbers_of";
import type { Placed } from "./plots";
import { sawPicture, sawSentence } from "./saw";
import { valueAt, valuesOf } from "./series";
import { powerAt, surfaceFor } from "./surface";

/** A picture that can be drawn in any look, on the screen and for a paper. */
export interface Picture {
  name: string;
  draw(look: Look): Composed | Placed;
  sentence(locale: string): string;
  numbers(): NumbersTable;
}

export interface State {
  test: Test;
  loaded: Loaded;
  given: Inputs;
  /** Where the design was moved to since the chart was drawn. */
  moved: { x: number; y: number | null } | null;
  /** What the x axis of the densities shows at least. */
  domain: [number, number] | null;
}

export function targetOf(given: Inputs, quantity: string): number | null {
  const target = quantity === "power" || quantity === "half-width" ? given[quantity] : null;
  return typeof target === "number" ? target : null;
}

/** Where the design is on the only curve. */
export function curveMark({ loaded, moved }: State): Mark | null {
  const { chart } = loaded;
  const curve = chart.curves[0]!;
  if (chart.curves.length > 1) return null;
  if (!moved) return markOf(chart, curve);
  const y = valueAt(chart.x, valuesOf(chart, curve), moved.x);
  return y === null ? null : { x: moved.x, y };
}

/** Where the design is on the surface. */
export function surfaceMark({ loaded, moved }: State): { x: number; y: number; power: number } | null {
  const { chart, axis, up } = loaded;
  const design = chart.curves[0]!.design;
  if (!up || !design) return null;
  const x = moved?.x ?? design.at[0]!;
  const y = moved?.y ?? design.at[1]!;
  const power = moved ? powerAt(surfaceFor(chart, [axis, up]), x, y) : (design["power"] as number);
  return power === null ? null : { x, y, power };
}

function nameOf({ loaded, test }: State): string {
  const { kind, chart } = loaded;
  return [test.name, kind === "curve" || kind === "contour" ? chart.chart : kind].join("-");
}

function curve(state: State): Picture {
  const { test, loaded, given } = state;
  const { chart, axis } = loaded;
  const input = {
    test,
    chart,
    axis,
    mark: curveMark(state),
    target: targetOf(given, chart.quantity),
    sizes: loaded.sizes,
  };
  return {
    name: nameOf(state),
    draw: (look) => curvePicture(input, look),
    sentence: (locale) => curveSentence(input, locale),
    numbers: () => numbersOfCurves(test, chart),
  };
}

function contour(state: State): Picture {
  const { test, loaded } = state;
  const { chart, axis, up } = loaded;
  const input = { test, chart, axes: [axis, up!] as [typeof axis, typeof axis], mark: surfaceMark(state) };
  return {
    name: nameOf(state),
    draw: (look) => contourPicture(input, look),
    sentence: (locale) => contourSentence(input, surfaceFor(chart, input.axes), locale),
    numbers: () => numbersOfSurface(chart),
  };
}

function densities(state: State, shown: Densities): Picture {
  const { test, loaded, domain } = state;
  const input = { test, answer: loaded.answer!, densities: shown, domain: domain! };
  return {
    name: nameOf(state),
    draw: (look) => densitiesPicture(input, look),
    sentence: (locale) => densitiesSentence(shown, locale),
    numbers: () => numbersOfDensities(shown),
  };
}

function saw(state: State): Picture {
  const { test, loaded } = state;
  const { chart, axis } = loaded;
  const teeth = loaded.teeth!;
  const at = curveMark(state)?.x;
  const alpha = loaded.answer?.results["level"] ?? chart.curves[0]!.inputs["alpha"];
  const input = { test, chart, axis, teeth, alpha: Number(alpha), mark: teeth.find(({ n }) => n === at) ?? null };
  return {
    name: nameOf(state),
    draw: (look) => sawPicture(input, look),
    sentence: (locale) => sawSentence(input, locale),
    numbers: () => numbersOfSaw(teeth),
  };
}

function interval(state: State): Picture | null {
  const { test, loaded, given } = state;
  const { chart, axis } = loaded;
  const mark = curveMark(state);
  if (!mark) return null;
  const input = { test, chart, axis, mark, target: targetOf(given, "half-width") };
  return {
    name: nameOf(state),
    draw: (look) => intervalPicture(input, look),
    sentence: (locale) => intervalSentence(input, locale),
    numbers: () => numbersOfBars(barsOf(input)),
  };
}

export function pictureOf(state: State): Picture | null {
  const { kind, densities: shown, teeth } = state.loaded;
  switch (kind) {
    case "curve":
      return curve(state);
    case "contour":
      return contour(state);
    case "densities":
      return shown && state.domain && state.loaded.answer ? densities(state, shown) : null;
    case "saw":
      return teeth ? saw(state) : null;
    case "interval":
      return interval(state);
  }
}
