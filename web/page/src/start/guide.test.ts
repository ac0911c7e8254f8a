import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { designFor, fits, type Guide, measureOf, noGuide, shelvesOf, wishFor } from "./guide";

const { tests } = (await open()).describe();
const fitting = (guide: Partial<Guide>) =>
  tests.filter((test) => fits(test, { ...noGuide, ...guide })).map(({ name }) => name);

describe("the guide", () => {
  it("lets all tests through while nothing is answered", () => expect(fitting({})).toHaveLength(tests.length));

  const ofGroups = ["anova", "contrast", "pairwise", "tukey", "dunnett", "factorial", "ancova", "repeated-measures"];
  const ofRelations = ["pearson", "spearman", "partial", "dependent-correlations", "regression"];
  const ways: [Partial<Guide>, string[]][] = [
    [{ measure: "number", groups: "one" }, ["mean"]],
    [{ measure: "number", groups: "pairs" }, ["repeated-measures", "paired-means", "crossover"]],
    [{ measure: "number", groups: "two" }, ["two-means"]],
    [{ measure: "number", groups: "more" }, ofGroups],
    [{ measure: "rank", groups: "one" }, ["signed-rank"]],
    [{ measure: "rank", groups: "pairs" }, ["signed-rank"]],
    [{ measure: "rank", groups: "two" }, ["mann-whitney", "ordinal"]],
    [{ measure: "spread", groups: "one" }, ["variance"]],
    [{ measure: "spread", groups: "two" }, ["two-variances"]],
    [{ measure: "yesNo", groups: "one" }, ["proportion"]],
    [{ measure: "yesNo", groups: "pairs" }, ["paired-proportions"]],
    [{ measure: "yesNo", groups: "two" }, ["two-proportions"]],
    [{ measure: "yesNo", groups: "more" }, ["contingency"]],
    [{ measure: "category" }, ["goodness-of-fit", "contingency"]],
    [{ measure: "category", groups: "more" }, ["contingency"]],
    [{ measure: "relation", groups: "one" }, ofRelations],
    [{ measure: "relation", groups: "two" }, ["two-correlations"]],
    [{ measure: "relation", aim: "estimate" }, ["pearson", "spearman", "partial"]],
    [{ groups: "two", aim: "estimate" }, ["two-means", "two-proportions"]],
    [{ aim: "margin" }, ["mean", "paired-means", "two-means", "crossover", "proportion", "two-proportions"]],
  ];
  it.each(ways)("%j leads to %j", (guide, names) => expect(fitting(guide)).toEqual(names));

  it("opens a test with the question that fits the aim", () => {
    const test = (name: string) => tests.find((one) => one.name === name)!;
    expect(wishFor(test("mean"), "estimate")).toBe("sample-size-for-half-width");
    expect(wishFor(test("mean"), "compare")).toBe("sample-size");
    expect(wishFor(test("regression"), "estimate")).toBe("sample-size");
  });

  it("opens a test at the margin where that is the aim", () => {
    const test = tests.find(({ name }) => name === "two-means")!;
    expect(designFor(test, "margin")).toMatchObject({ form: "means+sd+margin", texts: { "non-inferiority": ["yes"] } });
    expect(designFor(test, "compare").form).toBe("means+sd");
  });

  it("puts every test on one shelf", () => {
    const shelved = shelvesOf(tests).flatMap((shelf) => shelf.tests);
    expect(shelved.map(({ name }) => name).sort()).toEqual(tests.map(({ name }) => name).sort());
    for (const { kind, tests: some } of shelvesOf(tests)) for (const test of some) expect(measureOf(test)).toBe(kind);
  });
});
