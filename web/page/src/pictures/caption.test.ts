import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { heldFixed } from "./caption";
import type { Chart, Test } from "./model";

const kel = await open();
const tests = kel.describe().tests as unknown as Test[];

function fixed(name: string, inputs: object): string[] {
  const test = tests.find((one) => one.name === name)!;
  const chart = kel.draw({ test: name, inputs, chart: "n", names: "dash" } as never) as unknown as Chart;
  return heldFixed(test, chart, "en");
}

describe("what a picture holds fixed", () => {
  it("is told with the layout of the design", () => {
    const levels = { levels: [2, 2, 2], term: [1, 2, 3], "effect-f": 0.25, n: 20 };
    expect(fixed("factorial", levels)).toEqual([
      "levels of the factors 2, 2, 2",
      "factors of the effect 1, 2, 3",
      "effect size f 0.25",
      "significance level 0.05",
    ]);
  });
  it("has the label of a choice that is told by a name", () => {
    expect(fixed("mann-whitney", { "effect-d": 0.5, n: 50, method: "lehmann" })).toEqual([
      "effect size d 0.5",
      "parent distribution normal",
      "method Lehmann",
      "two-sided",
      "significance level 0.05",
    ]);
    expect(fixed("two-proportions", { proportions: [0.5, 0.75], n: 50 })).toContain("z test");
  });
});
