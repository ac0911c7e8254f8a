import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { search } from "./search";
import { knownWords } from "./words";

const { tests } = (await open()).describe();
const found = (words: string) => search(tests, words).tests;
const hints = (words: string) => search(tests, words).hints.join(" ");

describe("the search", () => {
  const first: [string, string][] = [
    ["before and after", "paired-means"],
    ["blood pressure before and after treatment", "paired-means"],
    ["paired", "paired-means"],
    ["McNemar", "paired-proportions"],
    ["two groups", "two-means"],
    ["how many patients for a difference of 5 with SD 10", "two-means"],
    ["Cohen's d", "two-means"],
    ["unpaired t-test", "two-means"],
    ["t test", "two-means"],
    ["welch", "two-means"],
    ["one-way anova", "anova"],
    ["3 groups", "anova"],
    ["tukey", "tukey"],
    ["Bonferroni", "pairwise"],
    ["Dunnett", "dunnett"],
    ["three doses against a control", "dunnett"],
    ["planned contrast", "contrast"],
    ["odds ratio", "two-proportions"],
    ["chi-square", "contingency"],
    ["chi-square goodness of fit", "goodness-of-fit"],
    ["contingency table", "contingency"],
    ["categorical variables", "contingency"],
    ["Fisher exact", "two-proportions"],
    ["percentage cured", "two-proportions"],
    ["binomial", "proportion"],
    ["survey margin of error", "proportion"],
    ["correlation", "pearson"],
    ["rank correlation", "spearman"],
    ["two correlations", "two-correlations"],
    ["dependent correlations", "dependent-correlations"],
    ["Wilcoxon", "mann-whitney"],
    ["Mann–Whitney U", "mann-whitney"],
    ["Wilcoxon signed rank", "signed-rank"],
    ["nonparametric", "mann-whitney"],
    ["ordinal outcome", "ordinal"],
    ["Likert", "ordinal"],
    ["proportional odds", "ordinal"],
    ["ANCOVA", "ancova"],
    ["analysis of covariance", "ancova"],
    ["two-way ANOVA", "factorial"],
    ["factorial design with interaction", "factorial"],
    ["repeated measures", "repeated-measures"],
    ["repeated measures ANOVA", "repeated-measures"],
    ["noninferiority", "two-means"],
    ["equivalence of proportions", "two-proportions"],
    ["bioequivalence", "crossover"],
    ["crossover trial", "crossover"],
    ["variances", "two-variances"],
    ["one variance", "variance"],
    ["partial correlation", "partial"],
    ["regression with 3 predictors", "regression"],
    ["R²", "regression"],
    ["befo", "paired-means"],
  ];
  it.each(first)("finds for %j first %s", (words, test) => expect(found(words)[0]).toBe(test));

  it("lists all tests without words, and for a word that any test answers", () => {
    const names = tests.map(({ name }) => name);
    expect(found("")).toEqual(names);
    expect(found("   ")).toEqual(names);
    expect(found("how many patients do I need")).toEqual(names);
    expect(hints("how many patients do I need")).toMatch(/Any test/);
  });

  const notOffered: [string, RegExp][] = [
    ["survival", /no test of survival times/],
    ["log-rank test", /no test of survival times/],
    ["Kaplan-Meier", /no test of survival times/],
    ["logistic regression", /no logistic regression/],
    ["Cohen's kappa", /not offered/],
    ["bayesian", /not offered/],
    ["mixed model", /not offered/],
    ["Levene", /no test of variances in several groups/],
    ["Kruskal-Wallis", /no test of ranks in several groups/],
  ];
  it.each(notOffered)("says honestly of %j that it is not offered", (words, hint) =>
    expect(hints(words)).toMatch(hint),
  );

  it("finds nothing for what nobody knows", () => {
    expect(search(tests, "xylophone")).toEqual({ tests: [], hints: [] });
    expect(search(tests, "???").tests).toHaveLength(tests.length);
  });

  it("finds a test that its words do not know by its own description", () => {
    const strange = {
      ...tests[0]!,
      name: "zinc",
      title: "Test of zinc in hair",
      about: "Tests zinc.",
      sources: [],
      parameters: [],
    };
    expect(search([...tests, strange], "zinc").tests).toEqual(["zinc"]);
    expect(search([...tests, strange], "hair")).toEqual({ tests: ["zinc"], hints: [] });
  });

  it("names only tests that there are, and hints without symbols of the command line", () => {
    const names = new Set(tests.map(({ name }) => name));
    for (const { tests: named, hint, words } of knownWords) {
      for (const name of named) expect(names, words[0]).toContain(name);
      expect(hint ?? "").not.toMatch(/--/);
      expect(named.length + (hint ?? "").length, words[0]).toBeGreaterThan(0);
    }
  });

  it("knows each word once", () => {
    const all = knownWords.flatMap(({ words }) => words);
    expect(all.filter((word, i) => all.indexOf(word) !== i)).toEqual([]);
  });
});
