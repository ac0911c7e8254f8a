import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { inputsOf } from "../form/inputs";
import { givenBy } from "./given";

const { tests } = (await open()).describe();

function inputsFor(name: string, text: string) {
  const test = tests.find((one) => one.name === name)!;
  const given = givenBy(test, text);
  return given && inputsOf(test, given.design).inputs;
}

describe("numbers among the words", () => {
  const cases: [string, string, object][] = [
    ["two-means", "how many patients for a difference of 5 with SD 10", { "mean-difference": 5, sd: [10], power: 0.8 }],
    ["two-means", "difference 2,5 sd 10 power 90%", { "mean-difference": 2.5, sd: [10], power: 0.9 }],
    ["two-means", "d = 0.5, 90% power", { "effect-d": 0.5, power: 0.9 }],
    ["two-means", "Cohen's d 0.5 with power 80", { "effect-d": 0.5, power: 0.8 }],
    ["two-means", "blood pressure 120 versus 125, standard deviation 12", { means: [120, 125], sd: [12], power: 0.8 }],
    ["two-means", "n = 40 and effect size of 0.5", { "effect-d": 0.5, n: [40] }],
    ["two-means", "sd 10, margin of error 3", { sd: [10], "half-width": 3 }],
    [
      "paired-means",
      "before and after, difference of 4, SD of 8",
      { "mean-difference": 4, "sd-difference": 8, power: 0.8 },
    ],
    ["two-proportions", "30% vs 45% cured, alpha 0.01", { proportions: [0.3, 0.45], power: 0.8, alpha: 0.01 }],
    ["two-proportions", "from 0.3 to 0.5 with 15% dropout", { proportions: [0.3, 0.5], power: 0.8, dropout: 0.15 }],
    ["pearson", "correlation of 0.3", { r: 0.3, power: 0.8 }],
  ];
  it.each(cases)("%s: %j", (test, text, inputs) => expect(inputsFor(test, text)).toEqual(inputs));

  it("are not made up", () => {
    for (const text of ["before and after", "3 groups", "two groups", "covid 19", "", "phase 2 trial or 3"]) {
      expect(inputsFor("two-means", text), text).toBeUndefined();
    }
    expect(inputsFor("proportion", "difference of 5 with sd 10")).toBeUndefined();
  });

  it("are told in the words of the form", () => {
    const test = tests.find(({ name }) => name === "two-means")!;
    expect(givenBy(test, "difference of 5 with SD 10")?.words).toBe(
      "difference of the means 5; standard deviations 10",
    );
  });
});
