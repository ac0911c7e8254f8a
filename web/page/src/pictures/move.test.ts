import { load } from "kelpower";
import type { Kelpower } from "kelpower";
import { afterAll, beforeAll, describe, expect, it } from "vitest";
import { asksForSizes, axesFor, axisOf, offeredAxes } from "./axes";
import type { Answer, Chart, Design, Test, Value } from "./model";
import { movedAlong, sizesThatAreFound } from "./move";
import { valuesOf } from "./series";

let kel: Kelpower;
let tests: Test[];
beforeAll(async () => {
  kel = await load();
  tests = kel.describe().tests as unknown as Test[];
});
afterAll(() => kel.close());

const draw = async (design: Design, chart: string, more = {}) =>
  (await kel.draw({ ...design, ...more, chart, names: "dash" } as never)) as unknown as Chart;
const solve = async (design: Design) => (await kel.solve({ ...design, names: "dash" } as never)) as unknown as Answer;

/** The design at a place of the curve, where the core is asked for its value. */
async function valueThere(design: Design, changes: Record<string, Value>): Promise<number> {
  const answer = await solve({ ...design, inputs: { ...design.inputs, ...changes } });
  const { power, "expected-power": expected, "half-width": width } = answer.results;
  return (expected ?? power ?? width) as number;
}

describe("moving a design along the curve", () => {
  it("gives the inputs that have the value of the curve, for every axis of every example", async () => {
    const fixed = new Set<string>();
    let moves = 0;
    for (const test of tests) {
      const examples = (test as unknown as { examples: { inputs: Record<string, unknown> }[] }).examples;
      for (const { inputs } of examples) {
        const design = { test: test.name, inputs };
        const { question } = await solve(design);
        if (asksForSizes(question)) continue;
        // With the power and the sizes given another number is found, and stays what it is asked for.
        if ("power" in inputs) continue;
        for (const axis of await offeredAxes(kel, design, test)) {
          const chart = await draw(design, axis.name);
          const values = valuesOf(chart, chart.curves[0]!);
          for (const at of [Math.floor(chart.x.length / 3), Math.floor((2 * chart.x.length) / 3)]) {
            // A curve has gaps where the core has no value, such as at unequal sizes of some tests.
            if (values[at] === null) continue;
            const changes = movedAlong(axis, chart.x[at]!, chart, inputs, question);
            if (!changes) {
              fixed.add(`${test.name} ${axis.name}`);
              continue;
            }
            const what = `${test.name} ${axis.name} = ${chart.x[at]} ${JSON.stringify(changes)}`;
            expect(await valueThere(design, changes), what).toBeCloseTo(values[at]!, 10);
            ++moves;
          }
        }
      }
    }
    expect(moves).toBeGreaterThan(200);
    // The ratio of sizes that are given divides a total into parts that are not whole.
    // Fisher's z of two correlations changes with both of them.
    const ratios = ["mann-whitney", "ordinal", "two-correlations", "two-means", "two-proportions", "two-variances"];
    expect([...fixed].sort()).toEqual([...ratios.map((name) => `${name} ratio`), "two-correlations effect-q"].sort());
  }, 600_000);

  it("sets the target power for which the sizes at that place are found", async () => {
    const design = { test: "two-means", inputs: { "effect-d": 0.5, power: 0.8 } };
    const chart = await draw(design, "n");
    const axis = axisOf(
      "n",
      tests.find(({ name }) => name === "two-means")!,
    );
    for (const size of [5, 20, 50, 64, 100, 149]) {
      const changes = movedAlong(axis, size, chart, design.inputs, "sample-size")!;
      expect(Object.keys(changes)).toEqual(["power"]);
      const answer = await solve({ ...design, inputs: { ...design.inputs, ...changes } });
      expect(answer.question).toBe("sample-size");
      expect(answer.results["n"]).toEqual([size, size]);
    }
    expect(movedAlong(axis, 64, chart, design.inputs, "sample-size")).toEqual({ power: 0.8 });
  });

  it("goes to no size that the power of an exact test falls to", async () => {
    const design = { test: "proportion", inputs: { null: 0.5, proportion: 0.7, power: 0.8, exact: true } };
    const chart = await draw(design, "n");
    const axis = axisOf(
      "n",
      tests.find(({ name }) => name === "proportion")!,
    );
    for (const stable of [false, true]) {
      const inputs: Record<string, unknown> = { ...design.inputs, stable };
      const found = sizesThatAreFound(chart, axis, inputs, "sample-size")!;
      expect(found.length).toBeGreaterThan(15);
      expect(found.length).toBeLessThan(chart.x.length / 2);
      for (const size of found.filter((_, i) => i % 5 === 2)) {
        const changes = movedAlong(axis, size, chart, inputs, "sample-size")!;
        const answer = await solve({ ...design, inputs: { ...inputs, ...changes } });
        expect(answer.results["n"], `${size} ${stable}`).toBe(size);
      }
    }
    expect(movedAlong(axis, 50, chart, design.inputs, "sample-size")).toBeNull();
    expect(sizesThatAreFound(chart, axis, design.inputs, "power")).toBeNull();
  });

  it("sets the target half-width likewise", async () => {
    const design = { test: "mean", inputs: { sd: 10, "half-width": 2.5 } };
    const chart = await draw(design, "n");
    const axis = axisOf(
      "n",
      tests.find(({ name }) => name === "mean")!,
    );
    for (const size of [20, 64, 120]) {
      const changes = movedAlong(axis, size, chart, design.inputs, "sample-size-for-half-width")!;
      const answer = await solve({ ...design, inputs: { ...design.inputs, ...changes } });
      expect(answer.results["n"]).toBe(size);
    }
  });

  it("moves inputs other than sizes as they were given, where sizes are found", async () => {
    const design = { test: "two-means", inputs: { means: [52, 47], sd: 10, power: 0.8 } };
    const test = tests.find(({ name }) => name === "two-means")!;
    const chart = await draw(design, "sd", { y: "n" });
    expect(movedAlong(axisOf("sd", test), 12, chart, design.inputs, "sample-size")).toEqual({ sd: 12 });
    const answer = await solve({ ...design, inputs: { ...design.inputs, sd: chart.x[50] } });
    expect((answer.results["n"] as number[])[0]).toBe(valuesOf(chart, chart.curves[0]!)[50]);
    expect(movedAlong(axisOf("mean2", test), 46, chart, design.inputs, "sample-size")).toEqual({ means: [52, 46] });
  });

  it("keeps the shares of unequal sizes", async () => {
    const design = { test: "two-means", inputs: { "effect-d": 0.6, n: [90, 60] } };
    const test = tests.find(({ name }) => name === "two-means")!;
    const chart = await draw(design, "total");
    expect(movedAlong(axisOf("total", test), 50, chart, design.inputs, "power")).toEqual({ n: [30, 20] });
    expect(movedAlong(axisOf("n2", test), 61, chart, design.inputs, "power")).toEqual({ n: [90, 61] });
    const axes = axesFor(await offeredAxes(kel, design, test), "power");
    expect(axes.map(({ name }) => name)).toContain("n2");
  });
});
