import { load } from "kelpower";
import type { Kelpower } from "kelpower";
import { afterAll, beforeAll, describe, expect, it } from "vitest";
import { axesFor, axesNamedIn, axisOf, canBePaired, offeredAxes, onTrack, stepped, trackOf } from "./axes";
import type { Chart, Test } from "./model";

let kel: Kelpower;
let tests: Test[];
beforeAll(async () => {
  kel = await load();
  tests = kel.describe().tests as unknown as Test[];
});
afterAll(() => kel.close());

const testNamed = (name: string) => tests.find((test) => test.name === name)!;

describe("the axes of a design", () => {
  it("are those that the core offers", async () => {
    const design = { test: "anova", inputs: { means: [10, 12, 15], sd: 6, n: 20 } };
    const axes = await offeredAxes(kel, design, testNamed("anova"));
    expect(axes.map(({ name }) => name)).toEqual("n total n1 n2 n3 mean1 mean2 mean3 sd alpha".split(" "));
    expect(axes.find(({ name }) => name === "mean3")!.title).toBe("group means, number 3");
  });
  it("are there for every example of every test, each of which can be drawn", async () => {
    for (const test of kel.describe().tests) {
      for (const { inputs } of test.examples) {
        const design = { test: test.name, inputs: inputs as Record<string, unknown> };
        const axes = await offeredAxes(kel, design, test as unknown as Test);
        expect(axes.length, JSON.stringify(design)).toBeGreaterThan(1);
        expect(axes.every(({ title }) => title.length > 1)).toBe(true);
        const chart = await kel.draw({ ...design, chart: axes.at(-1)!.name, names: "dash" } as never);
        expect(chart, JSON.stringify(design)).toHaveProperty("x");
      }
    }
  });
  it("are none where the message tells none", () => {
    expect(axesNamedIn("The sample size is not known.", testNamed("mean"))).toEqual([]);
    expect(axesNamedIn('chart is "?", but must be n.', testNamed("mean")).map(({ name }) => name)).toEqual(["n"]);
  });
  it("leave out the size of one group where sizes are asked for", () => {
    const axes = ["n", "total", "n1", "effect-d"].map((name) => axisOf(name, testNamed("two-means")));
    expect(axesFor(axes, "sample-size").map(({ name }) => name)).toEqual(["n", "total", "effect-d"]);
    expect(axesFor(axes, "power")).toHaveLength(4);
  });
  it("make no pair of two sizes or of totals", () => {
    const [n, n1, total, effect] = ["n", "n1", "total", "effect-d"].map((name) => axisOf(name, testNamed("two-means")));
    expect(canBePaired(n!, effect!)).toBe(true);
    expect(canBePaired(n!, n1!)).toBe(false);
    expect(canBePaired(total!, effect!)).toBe(false);
    expect(canBePaired(n!, n!)).toBe(false);
  });
});

describe("the track along an axis", () => {
  const chart = (x: number[]) => ({ x }) as Chart;

  it("has whole steps of sizes and round steps of figures", () => {
    const sizes = trackOf(chart([2, 4, 6, 150]), axisOf("n", testNamed("two-means")));
    expect(onTrack(sizes, 63.6)).toBe(64);
    expect(onTrack(sizes, 900)).toBe(150);
    expect(onTrack(sizes, -3)).toBe(2);
    expect(stepped(sizes, 64, -10)).toBe(54);
    const effects = trackOf(chart([0.0123, 1.25]), axisOf("effect-d", testNamed("two-means")));
    expect(effects.step).toBe(0.01);
    expect(onTrack(effects, 0.4987)).toBe(0.5);
    // Neither end is overstepped where it is no round number.
    expect(onTrack(effects, 0)).toBe(0.02);
    expect(stepped(effects, 1.25, 1)).toBe(1.25);
  });
  it("keeps to the totals that there are", () => {
    const totals = trackOf(chart([5, 8, 10, 13]), axisOf("total", testNamed("two-means")));
    expect(onTrack(totals, 9.2)).toBe(10);
    expect(stepped(totals, 8, 1)).toBe(10);
    expect(stepped(totals, 8, -7)).toBe(5);
  });
});
