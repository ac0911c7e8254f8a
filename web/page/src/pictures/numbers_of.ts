/** The numbers behind a picture, as a table and as CSV. */

import { curveLabel } from "./caption";
import type { Chart, Densities, Test } from "./model";
import type { Bar } from "./interval";
import type { Tooth } from "./saw";
import { surfaceOf, valuesOf } from "./series";

export interface NumbersTable {
  columns: string[];
  rows: (number | null)[][];
}

export function numbersOfCurves(test: Test, chart: Chart): NumbersTable {
  const names = chart.curves.map((curve) => {
    const label = curveLabel(test, chart, curve, "en");
    return chart.varied ? `${chart.quantity} (${label})` : chart.quantity;
  });
  const values = chart.curves.map((curve) => valuesOf(chart, curve));
  return {
    columns: [chart.axes[0]!.name, ...names],
    rows: chart.x.map((x, i) => [x, ...values.map((list) => list[i]!)]),
  };
}

export function numbersOfSurface(chart: Chart): NumbersTable {
  const surface = surfaceOf(chart);
  const y = chart.y ?? [];
  return {
    columns: [chart.axes[0]!.name, chart.axes[1]!.name, chart.quantity],
    rows: chart.x.flatMap((x, i) => y.map((place, j) => [x, place, surface[i]![j]!])),
  };
}

export function numbersOfDensities(densities: Densities): NumbersTable {
  return {
    columns: [densities.statistic, "without-effect", "with-effect"],
    rows: densities.x.map((x, i) => [x, densities.without[i]!, densities.with[i]!]),
  };
}

export function numbersOfSaw(teeth: Tooth[]): NumbersTable {
  return { columns: ["n", "power", "attained-level"], rows: teeth.map(({ n, power, level }) => [n, power, level]) };
}

export function numbersOfBars(bars: Bar[]): NumbersTable {
  return { columns: ["n", "half-width"], rows: bars.map(({ size, halfWidth }) => [size, halfWidth]) };
}

/** Evenly chosen rows, with the first and the last, for people to read. */
export function fewRows(table: NumbersTable, most = 21): NumbersTable {
  const { rows } = table;
  if (rows.length <= most) return table;
  const chosen = Array.from({ length: most }, (_, i) => rows[Math.round((i * (rows.length - 1)) / (most - 1))]!);
  return { columns: table.columns, rows: chosen };
}
