import { describe, expect, it } from "vitest";
import { comparables, readValues, usualValues } from "./compare";
import type { Chart, Test } from "./model";

describe("values to compare", () => {
  it("are around that of the design, within its limits", () => {
    expect(usualValues("effect-d", 0.5, {})).toEqual([0.3, 0.5, 0.7]);
    expect(usualValues("alpha", 0.05, undefined)).toEqual([0.01, 0.05, 0.1]);
    expect(usualValues("alpha", 0.02, undefined)).toEqual([0.012, 0.02, 0.028]);
    expect(usualValues("r", 0.8, { "exclusive-maximum": 1 })).toEqual([0.48, 0.8]);
    expect(usualValues("predictors", 3, { whole: true, minimum: 1 })).toEqual([2, 3, 4]);
    expect(usualValues("difference", -5, {})).toEqual([-7, -5, -3]);
    expect(usualValues("null", 0, {})).toEqual([0]);
  });
  it("are read with decimal points or commas, and what is no number is left out", () => {
    expect(readValues("0.2 0.5;0.8")).toEqual([0.2, 0.5, 0.8]);
    expect(readValues("0,2 0,5, 0,8")).toEqual([0.2, 0.5, 0.8]);
    expect(readValues(" \u22121.5  x 2 ")).toEqual([-1.5, 2]);
    expect(readValues("1 2 3 4 5 6 7 8")).toHaveLength(6);
  });
});

describe("inputs to compare", () => {
  const test = {
    parameters: [
      { name: "means", kind: "per-group", label: "group means" },
      { name: "sd", kind: "per-group", label: "standard deviations", spreads: true },
      { name: "n", kind: "per-group", label: "group sizes", spreads: true, limits: { whole: true } },
      { name: "ratios", kind: "per-group", label: "allocation ratios", spreads: true, role: "layout" },
      { name: "groups", kind: "number", label: "number of groups", role: "shape" },
      { name: "proportions", kind: "list", label: "proportions" },
      { name: "one-sided", kind: "flag", label: "one-sided test" },
      { name: "method", kind: "choice", label: "method", choices: ["z", "t"] },
      { name: "alpha", kind: "number", label: "significance level" },
    ],
  } as unknown as Test;
  const laidOut = { ratios: [1, 1], groups: 2, proportions: [0.5, 0.5] };
  const inputs = { means: [5, 4], sd: [10, 10], n: [20, 20], ...laidOut, "one-sided": false, method: "z", alpha: 0.05 };
  const chart = (axis: string) => ({ axes: [{ name: axis, title: axis }], curves: [{ inputs }] }) as unknown as Chart;
  const names = (axis: string, design: object) =>
    comparables(test, chart(axis), design as never).map(({ name }) => name);

  it("are numbers, those of all groups, flags and choices that do not move along the axis and lay nothing out", () => {
    expect(names("n", inputs)).toEqual(["sd", "one-sided", "method", "alpha"]);
    expect(names("sd", inputs)).toEqual(["n", "one-sided", "method", "alpha"]);
    expect(names("sd2", inputs)).toEqual(["n", "one-sided", "method", "alpha"]);
  });
  it("are no flags that a route cannot do without", () => {
    const flags = [
      { name: "exact", kind: "flag", label: "exact test" },
      { name: "superiority", kind: "flag", label: "superiority" },
    ];
    const needs = [
      ["sd", "n"],
      ["sd", "n", "exact"],
      ["sd", "n", "margin", "superiority"],
    ];
    const routed = {
      ...test,
      parameters: [...test.parameters, ...flags],
      routes: needs.map((each) => ({ needs: each })),
    };
    const given = { exact: true, superiority: true };
    const drawn = { axes: [{ name: "n", title: "n" }], curves: [{ inputs: given }] } as unknown as Chart;
    expect(comparables(routed as unknown as Test, drawn, given).map(({ name }) => name)).toEqual(["exact"]);
  });
  it("are none of what is found for the design", () => {
    const { n, ...given } = inputs;
    expect(n).toHaveLength(2);
    expect(names("alpha", given)).toEqual(["sd", "one-sided", "method"]);
  });
});
