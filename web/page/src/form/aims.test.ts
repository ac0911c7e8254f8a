import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { readDesign, writeDesign } from "../address";
import type { Test } from "../contract";
import { aimOf, aimsOf, formsBeside, withAim } from "./aims";
import { eitherOf, formOf, labelOfForm, offeredOf } from "./forms";
import { inputsOf } from "./inputs";
import { fieldsOf } from "./parts";
import { designOf } from "./said";

const kel = await open();
const { tests } = kel.describe();
const testCalled = (name: string): Test => tests.find((one) => one.name === name)!;
const twoMeans = testCalled("two-means");
const given = designOf(twoMeans, { "mean-difference": ["0"], sd: ["6"], power: ["0.9"], margin: ["-2"] });
const aim = (key: string) => aimsOf(twoMeans, "sample-size").find((one) => one.key === key)!;

describe("what a test is to show", () => {
  it("is found in the routes of its description", () => {
    const keys = (name: string) => aimsOf(testCalled(name), "sample-size").map(({ key }) => key);
    for (const name of ["mean", "paired-means", "two-means", "crossover", "proportion", "two-proportions"]) {
      expect(keys(name)).toEqual(["any", "non-inferiority", "superiority", "equivalence"]);
    }
    expect(keys("repeated-measures")).toEqual(["any", "coefficients"]);
    for (const name of ["anova", "tukey", "contingency", "regression"]) expect(keys(name)).toEqual(["any"]);
    expect(aimsOf(twoMeans, "half-width").map(({ key }) => key)).toEqual(["any"]);
    expect(aimsOf(twoMeans, "power:margin").map(({ key }) => key)).toEqual(["non-inferiority", "superiority"]);
  });

  it("is one of the flags that exclude each other, the first unless another is set", () => {
    expect(eitherOf(formOf(twoMeans, "sample-size", "means+sd+margin"))).toEqual(["non-inferiority", "superiority"]);
    expect(eitherOf(formOf(testCalled("two-proportions"), "power", "proportions+margin"))).toEqual([
      "non-inferiority",
      "superiority",
    ]);
    expect(eitherOf(formOf(testCalled("proportion"), "power", "proportion+null"))).toEqual([]);
    expect(aimOf(twoMeans, given)?.key).toBe("non-inferiority");
    expect(inputsOf(twoMeans, given).inputs).toMatchObject({ margin: -2, "non-inferiority": true });
  });

  it("changes the form and the flag, and keeps what was typed", () => {
    const superior = withAim(twoMeans, given, aim("superiority"));
    expect(inputsOf(twoMeans, superior).inputs).toEqual({
      "mean-difference": 0,
      sd: [6],
      margin: -2,
      superiority: true,
      power: 0.9,
    });
    expect(withAim(twoMeans, superior, aim("equivalence")).form).toBe("mean-difference+sd+equivalence");
    const plain = withAim(twoMeans, superior, aim("any"));
    expect(plain.form).toBe("mean-difference+sd");
    expect(fieldsOf(twoMeans, plain).map(({ parameter }) => parameter.name)).not.toContain("superiority");
    expect(inputsOf(twoMeans, withAim(twoMeans, plain, aim("superiority"))).inputs).toMatchObject({ margin: -2 });
  });

  it("stays in the address", () => {
    const superior = withAim(twoMeans, given, aim("superiority"));
    const read = readDesign(tests, writeDesign(twoMeans, superior))!;
    expect(aimOf(twoMeans, read)?.key).toBe("superiority");
    expect(inputsOf(twoMeans, read).inputs).toEqual(inputsOf(twoMeans, superior).inputs);
  });

  it("leaves the forms of the effect to choose from, told by what differs", () => {
    const labels = (name: string, wish: string, key: string) => {
      const test = testCalled(name);
      const beside = formsBeside(test, wish, formOf(test, wish, key));
      return offeredOf(beside, key).map((form) => labelOfForm(test, wish, form, beside));
    };
    expect(labels("two-means", "sample-size", "means+sd+margin")).toEqual([
      "group means and standard deviations",
      "difference of the means and standard deviations",
      "ratio of the means and coefficient of variation",
    ]);
    expect(labels("two-proportions", "sample-size", "proportions+equivalence")).toHaveLength(4);
    expect(labels("contingency", "sample-size", "table+rows")[0]).toBe("table");
  });
});
