/** The power of an exact test, size by size, above the level that it attains. */

import * as Plot from "@observablehq/plot";
import type { Axis } from "./axes";
import { capital, heldFixed, place, where } from "./caption";
import type { Placed } from "./plots";
import { compose } from "./frame";
import type { Look } from "./frame";
import { isNumbers } from "./model";
import type { Chart, Row, Table, Test, Value } from "./model";
import { shown, shownPower } from "./numbers";
import { drawPlot, heightOf, placed, powerTicks } from "./plots";
import { sentences, texts } from "./texts";

/** One design of the saw. */
export interface Tooth {
  n: number;
  power: number;
  level: number;
}

export interface SawInput {
  test: Test;
  chart: Chart;
  axis: Axis;
  teeth: Tooth[];
  alpha: number;
  mark: Tooth | null;
}

export const attainedLevel = "attained-level";

export function attainsLevel(results: Record<string, Value | null> | undefined): boolean {
  return typeof results?.[attainedLevel] === "number";
}

/** Sizes around the design, few enough to see every one. */
export function sizesAround(size: number, smallest: number): number[] {
  const reach = Math.max(14, Math.min(40, Math.round(size * 0.45)));
  const from = Math.max(smallest, size - reach);
  return Array.from({ length: 2 * reach + 1 }, (_, i) => from + i);
}

/** The sizes of all groups in the shares of the design. */
export function designSizes(sizes: number[], planned: Value): Value[] {
  if (!isNumbers(planned)) return sizes;
  return sizes.map((size) => planned.map((entry) => Math.max(1, Math.round((entry * size) / planned[0]!))));
}

export function teethOf(table: Table): Tooth[] {
  const toothOf = ({ inputs, results }: Row): Tooth | null => {
    const n = isNumbers(inputs.n) ? inputs.n[0] : inputs.n;
    const power = results?.power;
    const level = results?.[attainedLevel];
    return typeof n === "number" && typeof power === "number" && typeof level === "number" ? { n, power, level } : null;
  };
  return (table.rows as unknown as Row[]).map(toothOf).filter((tooth): tooth is Tooth => tooth !== null);
}

/** The deepest fall of the power from a size to the next, nearest to the design of those that matter. */
export function fallNear(teeth: Tooth[], size: number): [Tooth, Tooth] | null {
  let best: [Tooth, Tooth] | null = null;
  for (let i = 0; i + 1 < teeth.length; ++i) {
    const [a, b] = [teeth[i]!, teeth[i + 1]!];
    if (a.power - b.power < 0.005) continue;
    if (!best || Math.abs(a.n - size) < Math.abs(best[0]!.n - size)) best = [a, b];
  }
  return best;
}

export function sawPicture(input: SawInput, look: Look): Placed {
  const { teeth, mark, alpha, axis, test, chart } = input;
  const { palette, locale } = look;
  const domain: [number, number] = [teeth[0]!.n, teeth[teeth.length - 1]!.n];
  const height = heightOf(look.width);
  const highestLevel = Math.max(alpha, ...teeth.map(({ level }) => level)) * 1.2;
  const saw = (y: "power" | "level", colour: string): Plot.Markish[] => [
    Plot.line(teeth, { x: "n", y, stroke: colour, strokeWidth: 1.5 }),
    Plot.dot(teeth, { x: "n", y, r: teeth.length > 60 ? 1.8 : 2.4, fill: colour }),
    ...(mark
      ? [Plot.dot([mark], { x: "n", y, r: 6, fill: palette.design, stroke: palette.background, strokeWidth: 1.5 })]
      : []),
  ];
  const guide = mark ? [Plot.ruleX([mark.n], { stroke: palette.design, strokeDasharray: "2,3" })] : [];
  const marginLeft = 48;
  const power = drawPlot({
    look,
    marginLeft,
    height: Math.round(height * 0.68),
    hasXAxis: false,
    x: { domain },
    y: { domain: [0, 1], ticks: powerTicks },
    marks: [...guide, ...saw("power", palette.curves[0]!)],
  });
  const level = drawPlot({
    look,
    marginLeft,
    height: Math.round(height * 0.52),
    x: { domain },
    y: { domain: [0, highestLevel] },
    marks: [
      Plot.ruleY([alpha], { stroke: palette.ink, strokeWidth: 1.5, strokeDasharray: "6,4" }),
      ...guide,
      ...saw("level", palette.curves[1]!),
    ],
  });
  const key = [
    {
      symbol: { kind: "line" as const, stroke: palette.ink, dash: "6,4", width: 1.5 },
      text: texts.nominalLevel(shown(alpha, locale)),
    },
  ];
  const design = mark
    ? [
        {
          symbol: { kind: "dot" as const, fill: palette.design },
          text: `${texts.design}: ${place(axis, mark.n, locale)}, ${texts.power} ${shownPower(mark.power, locale)}, ${texts.attainedLevel} ${shown(mark.level, locale, 3)}`,
        },
      ]
    : [];
  const composed = compose(
    {
      name: `${capital(texts.power)}, ${texts.attainedLevel}: ${axis.title}`,
      description: sawSentence(input, locale),
      title: test.title,
      subtitles: heldFixed(test, chart, locale),
      key: [...design, ...key],
      panels: [
        { ...power.panel, yTitle: capital(texts.power) },
        { ...level.panel, yTitle: capital(texts.attainedLevel), xTitle: capital(axis.title) },
      ],
    },
    look,
  );
  return placed(composed, power);
}

export function sawSentence(input: SawInput, locale: string): string {
  const { mark, axis, alpha, teeth, test } = input;
  const said: string[] = [];
  if (mark) {
    said.push(
      sentences.saw(
        where(axis, mark.n, test, locale),
        shown(mark.level, locale, 3),
        shown(alpha, locale),
        shownPower(mark.power, locale),
      ),
    );
  }
  said.push(sentences.sawWhy);
  const fall = mark ? fallNear(teeth, mark.n) : null;
  if (fall) {
    const [before, after] = fall;
    said.push(
      sentences.sawFalls(
        shown(before.n, locale, 9),
        shown(after.n, locale, 9),
        shownPower(before.power, locale),
        shownPower(after.power, locale),
      ),
    );
  }
  return said.join(" ");
}
