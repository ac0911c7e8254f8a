// @vitest-environment happy-dom
import { load as start } from "kelpower";
import type { Kelpower } from "kelpower";
import { afterAll, beforeAll, describe, expect, it } from "vitest";
import { asksForSizes } from "./axes";
import { pictureOf } from "./build";
import type { Picture } from "./build";
import { barsOf } from "./interval";
import { labelPlaces } from "./labels";
import { outlines, powerAt, surfaceFor } from "./surface";
import { domainOf, tail } from "./densities";
import { fontOfPaper, textWidth } from "./frame";
import type { Look } from "./frame";
import { load, offerFor } from "./load";
import type { Choice, Kind, Loaded } from "./load";
import type { Answer, Densities, Design, Test } from "./model";
import { paletteOf } from "./palette";
import { fallNear, sizesAround } from "./saw";
import { surfaceOf } from "./series";

let kel: Kelpower;
let tests: Test[];
beforeAll(async () => {
  kel = await start();
  tests = kel.describe().tests as unknown as Test[];
});
afterAll(() => kel.close());

const look = (width: number, standsAlone = false): Look => ({
  width,
  palette: paletteOf("light"),
  locale: "en",
  font: fontOfPaper,
  standsAlone,
});

const plain: Choice = { kind: null, axis: "n", up: "", showsSizes: true, compare: null };

interface Shown {
  loaded: Loaded;
  picture: Picture;
  kinds: Kind[];
}

async function show(test: string, inputs: Record<string, unknown>, changes: Partial<Choice> = {}): Promise<Shown> {
  const design: Design = { test, inputs };
  const described = tests.find(({ name }) => name === test)!;
  const { question } = (await kel.solve({ ...design, names: "dash" } as never)) as unknown as Answer;
  const offer = await offerFor(kel, design, question, described);
  const loaded = await load(kel, design, question, offer, { ...plain, ...changes }, null);
  const domain = loaded.densities ? domainOf(loaded.densities) : null;
  const picture = pictureOf({ test: described, loaded, given: inputs, moved: null, domain });
  return { loaded, picture: picture!, kinds: offer.kinds };
}

/** Text that a picture would cut off at its left or right edge. */
function cutOff(svg: SVGSVGElement, width: number): string[] {
  const found: string[] = [];
  for (const text of svg.querySelectorAll("text")) {
    const inner = text.closest("svg svg") !== null;
    const words = text.textContent ?? "";
    if (inner || words === "") continue;
    const x = Number(text.getAttribute("x"));
    const size = Number(text.getAttribute("font-size"));
    const room = textWidth(words, size, fontOfPaper);
    const left = text.getAttribute("text-anchor") === "middle" ? x - room / 2 : x;
    // A single word may be longer than a line.
    if ((left < -1 || left + room > width + 1) && words.includes(" ")) found.push(words);
  }
  return found;
}

describe("pictures of every example of every test", () => {
  it("are well-formed, named, in bounds and told in words, in all kinds that fit", async () => {
    const seen = new Map<Kind, number>();
    for (const test of tests) {
      const { examples } = test as unknown as { examples: { inputs: Record<string, unknown> }[] };
      for (const { inputs } of examples) {
        const { kinds } = await show(test.name, inputs);
        const { question } = (await kel.solve({ test: test.name, inputs } as never)) as unknown as Answer;
        expect(kinds, JSON.stringify(inputs)).toContain(question.includes("half-width") ? "interval" : "contour");
        for (const kind of kinds) {
          seen.set(kind, (seen.get(kind) ?? 0) + 1);
          const { picture } = await show(test.name, inputs, { kind });
          for (const width of inputs === examples[0]!.inputs ? [300, 720] : [480]) {
            const { svg } = picture.draw(look(width, width !== 300));
            const what = `${test.name} ${kind} ${JSON.stringify(inputs)}`;
            const text = new XMLSerializer().serializeToString(svg);
            const read = new DOMParser().parseFromString(text, "image/svg+xml");
            expect(read.querySelector("parsererror"), what).toBeNull();
            expect(text, what).not.toMatch(/NaN|undefined|Infinity/);
            expect(svg.getAttribute("role")).toBe("img");
            expect(svg.querySelector("title")!.textContent!.length).toBeGreaterThan(5);
            expect(svg.querySelectorAll("[aria-label], [aria-hidden]"), what).toHaveLength(0);
            expect(cutOff(svg, width), what).toEqual([]);
          }
          const sentence = picture.sentence("en");
          expect(sentence, JSON.stringify(inputs)).toMatch(/^[A-Z].*[.]$/);
          expect(sentence).not.toMatch(/undefined|NaN|–/);
          expect(picture.draw(look(400)).svg.querySelector("desc")!.textContent).toBe(sentence);
          const { columns, rows } = picture.numbers();
          expect(rows.length).toBeGreaterThan(0);
          expect(rows.every((row) => row.length === columns.length)).toBe(true);
        }
      }
    }
    for (const kind of ["curve", "densities", "contour", "saw", "interval"] as const) {
      expect(seen.get(kind) ?? 0, kind).toBeGreaterThan(2);
    }
  }, 600_000);
});

describe("the curve", () => {
  it("has its dot where the scales put the design, and gives places back", async () => {
    const { picture } = await show("two-means", { "effect-d": 0.5, power: 0.8 });
    const placed = picture.draw(look(600)) as ReturnType<Picture["draw"]> & {
      toX(x: number): number;
      toY(y: number): number;
      fromX(x: number): number;
      fromY(y: number): number;
    };
    const dot = [...placed.svg.querySelectorAll("svg svg circle")].at(-1)!;
    expect(Number(dot.getAttribute("cx"))).toBeCloseTo(placed.toX(64), 6);
    expect(placed.toX(150) - placed.toX(2)).toBeGreaterThan(500);
    expect(placed.toY(1)).toBeLessThan(placed.toY(0));
    expect(placed.fromX(placed.toX(64))).toBeCloseTo(64, 9);
    expect(placed.fromY(placed.toY(0.8))).toBeCloseTo(0.8, 9);
  });
  it("tells the power, that of half the size, and the size of the next level", async () => {
    const { picture } = await show("two-means", { "effect-d": 0.5, power: 0.8 });
    expect(picture.sentence("en")).toBe(
      "With 64 observations per group the power is 0.80: of 100 such studies, about 80 would find the effect. " +
        "With 32 observations per group it would be 0.50. A power of 0.9 takes 86 observations per group.",
    );
    expect(picture.sentence("de")).toContain("0,80");
  });
  it("shows the sizes that an effect needs, unless the power is wanted", async () => {
    const inputs = { "effect-d": 0.5, power: 0.8 };
    const sizes = await show("two-means", inputs, { axis: "effect-d" });
    expect(sizes.loaded.chart.quantity).toBe("sample-size");
    expect(sizes.picture.sentence("en")).toBe(
      "At effect size d = 0.5 the study needs 64 observations per group. At effect size d = 0.4 it would need 100 observations per group.",
    );
    const power = await show("two-means", inputs, { axis: "effect-d", showsSizes: false });
    expect(power.loaded.chart.quantity).toBe("power");
  });
  it("has a curve, a dash and a place in the key for each alternative", async () => {
    const compare = { name: "effect-d", values: [0.3, 0.5, 0.7] };
    const { picture, loaded } = await show("two-means", { "effect-d": 0.5, power: 0.8 }, { compare });
    expect(loaded.chart.curves).toHaveLength(3);
    const { svg } = picture.draw(look(600));
    const dashes = [...svg.querySelectorAll("svg svg path")].map((path) =>
      (path.closest("[stroke-dasharray]") ?? path).getAttribute("stroke-dasharray"),
    );
    expect(new Set(dashes).size).toBe(3);
    for (const words of ["effect size d 0.3", "effect size d 0.5", "effect size d 0.7"]) {
      expect(svg.textContent).toContain(words);
    }
    expect(picture.sentence("en")).toContain("Effect size d 0.3: 176 observations per group, power 0.80.");
    expect(picture.numbers().columns).toHaveLength(4);
  });
  it("puts lists of groups in one list for each alternative", async () => {
    const inputs = { means: [52, 47], sd: [10, 14], n: 40 };
    const { loaded } = await show("two-means", inputs, {
      axis: "difference",
      compare: { name: "n", values: [20, 40] },
    });
    expect(loaded.chart.curves.map((curve) => curve.inputs["n"])).toEqual([
      [20, 20],
      [40, 40],
    ]);
  });
  it("is not drawn where there is a single value", async () => {
    const inputs = { means: [10, 12, 15], sd: 6, n: 20 };
    await expect(show("tukey", inputs, { kind: "curve", axis: "n1" })).rejects.toThrow(
      "a single value of the size of group 1",
    );
  });
  it("tells where an exact test keeps a power, for it may lose it again", async () => {
    const inputs = { null: 0.5, proportion: 0.7, power: 0.8, exact: true };
    const { picture, loaded } = await show("proportion", inputs);
    const { x } = loaded.chart;
    const power = loaded.chart.curves[0]!["power"] as number[];
    const size = Number(/It stays at 0.9 or above from (\d+) observations on/.exec(picture.sentence("en"))![1]);
    expect(power.slice(x.indexOf(size)).every((value) => value >= 0.9)).toBe(true);
    expect(power[x.indexOf(size) - 1]).toBeLessThan(0.9);
  });
});

describe("the distributions", () => {
  const area = (points: { x: number; with: number; without: number }[], name: "with" | "without") =>
    points
      .slice(1)
      .reduce((sum, point, i) => sum + ((point.x - points[i]!.x) * (point[name] + points[i]![name])) / 2, 0);

  it("have the level and the power as areas beyond the critical values", async () => {
    const designs: [string, Record<string, unknown>][] = [
      ["two-means", { "effect-d": 0.5, power: 0.8 }],
      ["two-means", { "effect-d": 0.5, n: 30, "one-sided": true }],
      ["anova", { means: [10, 12, 15], sd: 6, n: 20 }],
      ["pearson", { r: -0.3, n: 84 }],
      ["regression", { "effect-f2": 0.15, predictors: 5, n: 90 }],
    ];
    for (const [test, inputs] of designs) {
      const { loaded } = await show(test, inputs, { kind: "densities" });
      const densities = loaded.densities!;
      const tails = [tail(densities, "low"), tail(densities, "high")].filter((points) => points.length);
      // What lies outside the picture is a few thousandths.
      expect(tails.reduce((sum, points) => sum + area(points, "without"), 0)).toBeCloseTo(densities.level, 2);
      expect(Math.abs(tails.reduce((sum, points) => sum + area(points, "with"), 0) - densities.power)).toBeLessThan(
        0.006,
      );
      for (const points of tails)
        expect(points.some(({ x }) => x === densities["rejects-from"] || x === densities["rejects-to"]));
    }
  });
  it("have the probabilities of counts, summed exactly", async () => {
    const inputs = { null: 0.5, proportion: 0.7, n: 30, exact: true };
    const { loaded, picture } = await show("proportion", inputs, { kind: "densities" });
    const densities = loaded.densities!;
    const counts = [...tail(densities, "low"), ...tail(densities, "high")];
    expect(counts.map(({ x }) => x).slice(0, 10)).toEqual([0, 1, 2, 3, 4, 5, 6, 7, 8, 9]);
    expect(counts.reduce((sum, point) => sum + point.without, 0)).toBeCloseTo(densities.level, 12);
    expect(counts.reduce((sum, point) => sum + point.with, 0)).toBeCloseTo(densities.power, 12);
    expect(picture.sentence("en")).toContain("falls to 9 or less, or to 21 or more, in about 4 of 100 studies");
  });
  it("leave out counts that hardly ever occur", () => {
    const x = [0, 1, 2, 3, 4];
    const densities: Densities = {
      statistic: "count",
      level: 0,
      power: 0,
      x,
      without: [1e-9, 0.5, 0.5, 1e-9, 1e-9],
      with: [1e-9, 1e-9, 0.5, 0.5, 1e-9],
    };
    expect(domainOf(densities)).toEqual([0.5, 3.5]);
  });
  it("tell where the test rejects", async () => {
    const { picture } = await show("anova", { means: [10, 12, 15], sd: 6, power: 0.9 }, { kind: "densities" });
    expect(picture.sentence("en")).toContain("the test statistic F falls above 3.08 in about 5 of 100 studies");
  });
});

describe("the contour", () => {
  it("has the values of the chart, each at its place", async () => {
    const { loaded } = await show("two-means", { "effect-d": 0.5, power: 0.8 }, { kind: "contour" });
    const { chart, axis, up } = loaded;
    expect([axis.name, up!.name]).toEqual(["n", "effect-d"]);
    const surface = surfaceFor(chart, [axis, up!]);
    const values = surfaceOf(chart);
    for (const [i, j] of [
      [0, 0],
      [3, 90],
      [100, 5],
      [chart.x.length - 1, chart.y!.length - 1],
    ] as const) {
      expect(powerAt(surface, chart.x[i]!, chart.y![j]!)).toBeCloseTo(values[i]![j]!, 12);
    }
    expect(powerAt(surface, chart.x[0]! - 1, chart.y![0]!)).toBeNull();
  });
  it("puts labels on their lines, apart from each other and from the design", async () => {
    const { loaded } = await show("anova", { means: [10, 12, 15], sd: 6, n: 20 }, { kind: "contour", up: "sd" });
    const surface = surfaceFor(loaded.chart, [loaded.axis, loaded.up!]);
    const mark = { x: 20, y: 6 };
    const labels = labelPlaces(surface, 500, 300, mark);
    expect(labels.length).toBeGreaterThan(2);
    for (const label of labels) expect(powerAt(surface, label.x, label.y)).toBeCloseTo(label.level, 1);
    const [width, height] = [surface.x.at(-1)! - surface.x[0]!, surface.y.at(-1)! - surface.y[0]!];
    const all = [...labels, mark];
    all.forEach((one, i) =>
      all.slice(i + 1).forEach((other) => {
        const across = (Math.abs(one.x - other.x) / width) * 500;
        const up = (Math.abs(one.y - other.y) / height) * 300;
        expect(across > 40 || up > 18).toBe(true);
      }),
    );
  });
  it("has the area above a level from where the level is crossed to the edge, and no further", () => {
    const surface = { x: [10, 20, 30], y: [0, 1], values: [0.1, 0.3, 0.5, 0.1, 0.3, 0.5], isSmoothed: false };
    const [ring, ...others] = outlines(surface, 0.4);
    expect(others).toEqual([]);
    const range = (i: 0 | 1) => [Math.min(...ring!.map((at) => at[i])), Math.max(...ring!.map((at) => at[i]))];
    expect(range(0)[0]).toBeCloseTo(25, 9);
    expect(range(0)[1]).toBe(30);
    expect(range(1)).toEqual([0, 1]);
    expect(outlines(surface, 0.6)).toEqual([]);
  });
  it("draws no line along its edges", async () => {
    const { picture } = await show("two-means", { "effect-d": 0.5, power: 0.8 }, { kind: "contour" });
    const { svg } = picture.draw(look(600));
    const plot = svg.querySelector("svg")!;
    const [area, line] = [...plot.querySelectorAll("path")].map((path) => path.getAttribute("d")!);
    const right = (d: string) => Math.max(...[...d.matchAll(/([\d.]+),/g)].map(([, x]) => Number(x)));
    const drawn = [...line!.matchAll(/L([\d.]+),/g)].map(([, x]) => Number(x));
    expect(right(area!)).toBeCloseTo(582, 1);
    // The line meets the right edge where the level leaves the picture, once.
    expect(drawn.filter((x) => x > 581.99).length).toBeLessThan(3);
    expect([...area!.matchAll(/L([\d.]+),/g)].filter(([, x]) => Number(x) > 581.99).length).toBeGreaterThan(10);
  });
  it("has gaps where the core has no power", () => {
    const surface = { x: [0, 1], y: [0, 1], values: [0.1, NaN, 0.3, 0.5], isSmoothed: false };
    expect(powerAt(surface, 0, 0.5)).toBeCloseTo(0.2, 12);
    expect(powerAt(surface, 0.5, 0.5)).toBeNull();
    expect(powerAt(surface, 1, 0)).toBeNull();
  });
  it("takes the least power still to come where it jumps, and says so", async () => {
    const inputs = { null: 0.5, proportion: 0.7, n: 30, exact: true };
    const { loaded, picture } = await show("proportion", inputs, { kind: "contour", up: "proportion" });
    const surface = surfaceFor(loaded.chart, [loaded.axis, loaded.up!]);
    expect(surface.isSmoothed).toBe(true);
    const row = surface.y.findIndex((y) => y > 0.69);
    const values = surface.values.slice(row * surface.x.length, (row + 1) * surface.x.length);
    expect(values.every((value, i) => i === 0 || value >= values[i - 1]!)).toBe(true);
    expect(picture.sentence("en")).toContain("goes up and down");
  });
});

describe("the saw of an exact test", () => {
  it("has the level that every size attains, below the level planned", async () => {
    const inputs = { null: 0.5, proportion: 0.7, n: 30, exact: true };
    const { loaded, picture } = await show("proportion", inputs, { kind: "saw" });
    const teeth = loaded.teeth!;
    expect(teeth.every(({ level }) => level > 0 && level <= 0.05)).toBe(true);
    const own = teeth.find(({ n }) => n === 30)!;
    expect(own.level).toBeCloseTo(0.042773945, 8);
    expect(own.power).toBeCloseTo(0.588815963, 8);
    expect(picture.sentence("en")).toContain("from 30 to 31 the power falls from 0.59 to 0.54");
  });
  it("is there where sizes are asked for, and of two groups", async () => {
    const found = await show("proportion", { null: 0.5, proportion: 0.7, power: 0.8, exact: true }, { kind: "saw" });
    expect(found.loaded.teeth!.some(({ n }) => n === 49)).toBe(true);
    const two = await show("two-proportions", { proportions: [0.5, 0.75], n: [50, 100], exact: true }, { kind: "saw" });
    expect(two.loaded.teeth!.some(({ n }) => n === 50)).toBe(true);
    const normal = await show("proportion", { null: 0.5, proportion: 0.7, n: 30 });
    expect(normal.kinds).not.toContain("saw");
  });
  it("goes over whole sizes from the smallest on", () => {
    expect(sizesAround(5, 1)[0]).toBe(1);
    expect(sizesAround(100, 1)).toHaveLength(81);
  });
  it("finds the fall that is nearest to the design", () => {
    const teeth = [0.1, 0.3, 0.2, 0.4, 0.5, 0.4].map((power, i) => ({ n: i + 1, power, level: 0.04 }));
    expect(fallNear(teeth, 5)!.map(({ n }) => n)).toEqual([5, 6]);
    expect(fallNear(teeth, 1)!.map(({ n }) => n)).toEqual([2, 3]);
    expect(fallNear(teeth.slice(0, 2), 1)).toBeNull();
  });
});

describe("the interval", () => {
  it("has the design between smaller and larger ones, of which a fourth reaches twice as far", async () => {
    const inputs = { sd: 10, "half-width": 2.5 };
    const { loaded, picture, kinds } = await show("mean", inputs);
    expect(kinds[0]).toBe("interval");
    const bars = barsOf({
      test: tests.find(({ name }) => name === "mean")!,
      chart: loaded.chart,
      axis: loaded.axis,
      mark: { x: 64, y: 2.498 },
      target: 2.5,
    });
    expect(bars.map(({ size }) => size)).toEqual([16, 32, 64, 128]);
    expect(bars.filter(({ isDesign }) => isDesign).map(({ size }) => size)).toEqual([64]);
    expect(bars[0]!.halfWidth / 2.498).toBeGreaterThan(2);
    const { svg } = picture.draw(look(600));
    expect(svg.textContent).toContain("one standard deviation: 10");
    expect(svg.textContent).toContain("n = 64: ± 2.498".replace(": ", ":  "));
  });
  it("gives its confidence", async () => {
    const { picture } = await show("mean", { sd: 10, n: 40, interval: true, alpha: 0.1 });
    expect(picture.sentence("en")).toContain("the 90% confidence interval");
    expect(asksForSizes("half-width")).toBe(false);
  });
});
