import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { fits, type Guide, measureOf, noGuide, shelvesOf, wishFor } from "./guide";

const { tests } = (await open()).describe();
const fitting = (guide: Partial<Guide>) =>
  tests.filter((test) => fits(test, { ...noGuide, ...guide })).map(({ name }) => name);

describe("the guide", () => {
  it("lets all tests through while nothing is answered", () => expect(fitting({})).toHaveLength(tests.length));

  const ways: [Partial<Guide>, string[]][] = [
    [{ measure: "number", groups: "one" }, ["mean"]],
    [{ measure: "number", groups: "pairs" }, ["paired-means"]],
    [{ measure: "number", groups: "two" }, ["two-means"]],
    [{ measure: "number", groups: "more" }, ["anova", "contrast", "pairwise"]],
    [{ measure: "yesNo", groups: "one" }, ["proportion"]],
    [{ measure: "yesNo", groups: "pairs" }, ["paired-proportions"]],
    [{ measure: "yesNo", groups: "two" }, ["two-proportions"]],
    [{ measure: "yesNo", groups: "more" }, []],
    [{ measure: "relation" }, ["pearson", "spearman", "partial", "regression"]],
    [{ measure: "relation", groups: "one" }, ["pearson", "spearman", "partial", "regression"]],
    [{ measure: "relation", groups: "two" }, []],
    [{ measure: "relation", aim: "estimate" }, ["pearson", "spearman", "partial"]],
    [{ groups: "two", aim: "estimate" }, ["two-means", "two-proportions"]],
  ];
  it.each(ways)("%j leads to %j", (guide, names) => expect(fitting(guide)).toEqual(names));

  it("opens a test with the question that fits the aim", () => {
    const test = (name: string) => tests.find((one) => one.name === name)!;
    expect(wishFor(test("mean"), "estimate")).toBe("sample-size-for-half-width");
    expect(wishFor(test("mean"), "compare")).toBe("sample-size");
    expect(wishFor(test("regression"), "estimate")).toBe("sample-size");
  });

  it("puts every test on one shelf", () => {
    const shelved = shelvesOf(tests).flatMap((shelf) => shelf.tests);
    expect(shelved.map(({ name }) => name).sort()).toEqual(tests.map(({ name }) => name).sort());
    for (const { kind, tests: some } of shelvesOf(tests)) for (const test of some) expect(measureOf(test)).toBe(kind);
  });
});
