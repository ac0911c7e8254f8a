import { open, type DirectKelpower } from "kelpower/direct";
import { beforeAll, beforeEach, describe, expect, it } from "vitest";
import { readDesign, writeDesign } from "../address";
import type { Parameter, Test } from "../contract";
import type { Design } from "./design";
import { inputsOf } from "./inputs";
import { designOf, wordsOf } from "./said";
import { formsOf, nearestForm } from "./forms";
import { addGroup, removeGroup } from "./groups";
import { emptyDesign, fieldsOf } from "./parts";
import { countOfTest, groupsOf, isCount } from "./shape";
import { nearestSought, questionsOf, soughtOf } from "./wishes";

const kel: DirectKelpower = await open();
const { tests } = kel.describe();

function testCalled(name: string): Test {
  const test = tests.find((one) => one.name === name);
  if (!test) throw new Error(`no test ${name}`);
  return test;
}

function solve(test: Test, design: Design) {
  const { inputs, lacks } = inputsOf(test, design);
  expect(lacks.map(({ parameter }) => parameter.name)).toEqual([]);
  return kel.solve({ test: test.name, inputs });
}

/** Values that go together, for inputs that no example of a test has. */
const plausible: Record<string, string[]> = {
  "mean-difference": ["4"],
  "sd-difference": ["8"],
  correlation: ["0.2"],
  "risk-difference": ["0.2"],
  "risk-ratio": ["1.5"],
  "odds-ratio": ["2"],
  proportion1: ["0.3"],
  proportion2: ["0.5"],
  p12: ["0.1"],
  p21: ["0.25"],
  "effect-f": ["0.3"],
  "eta-squared": ["0.1"],
  "effect-f2": ["0.15"],
  "effect-d": ["0.5"],
  power: ["0.8"],
  comparisons: ["2"],
  dropout: ["0.1"],
  "cluster-size": ["10"],
  icc: ["0.02"],
  "cluster-cv": ["0.3"],
  population: ["2000"],
  assurance: ["0.8"],
  "effect-sd": ["0.05"],
  tested: ["1"],
  "r-squared-reduced": ["0.1"],
};

/** The texts of an input in the example that has most of the form's inputs. */
function exampleTexts(test: Test, parameter: Parameter, form: string): string[] {
  const shared = (inputs: object) => form.split("+").filter((name) => name in inputs).length;
  const nearest = [...test.examples].sort((a, b) => shared(b.inputs) - shared(a.inputs));
  for (const { inputs } of nearest) {
    const words = wordsOf(inputs)[parameter.name];
    if (words && (parameter.length === undefined || words.length === parameter.length)) return words;
  }
  return [];
}

function textsFor(test: Test, parameter: Parameter, form: string): string[] {
  if (isCount(parameter) && parameter === countOfTest(test)) return ["3"];
  if (parameter.spreads) return [exampleTexts(test, parameter, form)[0] ?? "1"];
  if (parameter.name === "margin" && form.includes("ratio")) return ["0.8"];
  return plausible[parameter.name] ?? exampleTexts(test, parameter, form);
}

function filled(test: Test, wish: string, form: string): Design {
  let design: Design = { test: test.name, wish, form, texts: {} };
  for (const { parameter, needed } of fieldsOf(test, design)) {
    // Some effects take groups and a correlation that the core can do without.
    if (needed || isCount(parameter) || parameter.name === "correlation")
      design = { ...design, texts: { ...design.texts, [parameter.name]: textsFor(test, parameter, form) } };
  }
  return design;
}

// The core answers at once, and thousands of answers in a row would keep the runner waiting for a sign of life.
beforeEach(() => new Promise((done) => setTimeout(done)));

const wishesOf = (test: Test) => [...questionsOf(test), ...soughtOf(test).map(({ wish }) => wish)];

const allForms = tests.flatMap((test) =>
  wishesOf(test).flatMap((wish) => formsOf(test, wish).map((form) => ({ test, wish, form: form.key }))),
);

describe("every form of every test", () => {
  it("is reached: each route of the description by some form", () => {
    for (const test of tests) {
      const reached = new Set(wishesOf(test).flatMap((wish) => formsOf(test, wish).flatMap(({ routes }) => routes)));
      expect(test.routes.filter((route) => !reached.has(route))).toEqual([]);
    }
    expect(allForms.length).toBeGreaterThan(150);
  });

  it.each(allForms)("$test.name asks $wish by $form and is answered", ({ test, wish, form }) => {
    const answer = solve(test, filled(test, wish, form));
    // A number that a design has no room for is an answer of the core, too; and of pairs that share no variable the
    // correlation of 1 and 3 is not compared, so that it is not to be found.
    if (wish === "power:r13" && form.includes("r34")) expect(answer).toHaveProperty("error.code", "condition-fails");
    else if ("error" in answer) expect(answer.error).toMatchObject({ kind: "no-solution" });
    else expect(answer.question).toBe(wish.split(":")[0]);
  });

  it.each(allForms)("$test.name with $wish by $form is the same from its address", ({ test, wish, form }) => {
    const design = filled(test, wish, form);
    const read = readDesign(tests, writeDesign(test, design));
    expect(read && inputsOf(test, read).inputs).toEqual(inputsOf(test, design).inputs);
    expect(read?.wish).toBe(wish);
  });

  it.each(allForms)("$test.name with $wish by $form keeps its question while it is empty", ({ test, wish, form }) => {
    const design: Design = { test: test.name, wish, form, texts: {} };
    const read = readDesign(tests, writeDesign(test, design));
    expect({ wish: read?.wish, fields: read && fieldsOf(test, read).map(({ parameter }) => parameter.name) }).toEqual({
      wish,
      fields: fieldsOf(test, design).map(({ parameter }) => parameter.name),
    });
  });

  it.each(allForms)(
    "$test.name with $wish by $form offers no input that the core refuses there",
    ({ test, wish, form }) => {
      const design = filled(test, wish, form);
      const solvable = solve(test, design);
      for (const { parameter, needed } of fieldsOf(test, design)) {
        if (needed || parameter.name === "alpha") continue;
        const texts = parameter.kind === "flag" ? ["yes"] : textsFor(test, parameter, form);
        const words = parameter.kind === "choice" ? [parameter.choices?.at(-1) ?? ""] : texts;
        const answer = solve(test, { ...design, texts: { ...design.texts, [parameter.name]: words } });
        if (!("error" in answer) || "error" in solvable) continue;
        if (answer.error.kind === "no-solution") continue;
        expect(answer.error.code, `${parameter.name}: ${answer.error.message}`).toBe("condition-fails");
      }
    },
  );
});

describe("the examples of the core", () => {
  const examples = tests.flatMap((test) => test.examples.map((example) => ({ test, ...example })));

  it.each(examples)("$arguments, typed into the form", ({ test, inputs, sentence }) => {
    expect(solve(test, designOf(test, wordsOf(inputs)))).toMatchObject({ sentence });
  });

  it.each(examples)("$arguments, as the part of an address", (example) => {
    const design = readDesign(tests, example.arguments);
    expect(design && solve(example.test, design)).toMatchObject({ sentence: example.sentence });
    const again = design && readDesign(tests, writeDesign(example.test, design));
    expect(again && solve(example.test, again)).toMatchObject({ sentence: example.sentence });
  });
});

describe("a design", () => {
  const twoMeans = testCalled("two-means");
  const anova = testCalled("anova");

  it("says what it lacks, and leaves defaults to the core", () => {
    const design = emptyDesign(twoMeans, "sample-size");
    const { inputs, lacks } = inputsOf(twoMeans, design);
    expect(lacks.map(({ parameter }) => parameter.name)).toEqual(["means", "sd"]);
    expect(inputs).toEqual({ power: 0.8 });
  });

  it("hands what is no number to the core, which refuses it", () => {
    const design = designOf(twoMeans, { "effect-d": ["abc"], power: ["0.8"] });
    expect(solve(twoMeans, design)).toMatchObject({
      error: { code: "not-allowed", parameter: "effect-d", value: "abc" },
    });
    const list = designOf(twoMeans, { means: ["1", "x"], sd: ["2"], power: ["0.8"] });
    expect(solve(twoMeans, list)).toMatchObject({ error: { code: "not-allowed", parameter: "means" } });
  });

  it("keeps a number of two meanings from the core", () => {
    const design = designOf(twoMeans, { "effect-d": ["1", "000"], power: ["0.8"] });
    expect(inputsOf(twoMeans, design).lacks).toMatchObject([{ unclear: "1,000" }]);
  });

  it("has as many entries as groups", () => {
    let design = designOf(anova, { means: ["1", "2", "3"], sd: ["2"], n: ["10", "20", "30"] });
    design = addGroup(anova, design);
    expect(groupsOf(anova, design)).toBe(4);
    expect(design.texts["n"]).toEqual(["10", "20", "30", ""]);
    expect(inputsOf(anova, design).lacks.map(({ parameter }) => parameter.name)).toEqual(["means", "n"]);
    design = removeGroup(anova, removeGroup(anova, removeGroup(anova, design)));
    expect(design.texts["means"]).toEqual(["1", "2"]);
    expect(inputsOf(anova, design).inputs).toEqual({ means: [1, 2], sd: 2, n: [10, 20] });
  });

  it("asks for the number of groups only where no list tells it", () => {
    const names = (form: string) =>
      fieldsOf(anova, { ...emptyDesign(anova, "sample-size"), form }).map(({ parameter }) => parameter.name);
    expect(names("means+sd")).not.toContain("groups");
    expect(names("effect-f")).toContain("groups");
  });

  it("finds the question in the words of the program", () => {
    const wish = (words: Record<string, string[]>) => designOf(twoMeans, words).wish;
    expect(wish({ "effect-d": ["0.5"], power: ["0.8"] })).toBe("sample-size");
    expect(wish({ d: ["0.5"], n: ["64"] })).toBe("power");
    expect(wish({ n: ["64"], power: ["0.8"] })).toBe("power:effect-d");
    expect(wish({ n: ["64"], power: ["0.8"], sd: ["10"] })).toBe("power:mean-difference");
    expect(wish({ n: ["64"], sd: ["10"], interval: ["yes"] })).toBe("half-width");
    expect(wish({ sd: ["10"], "half-width": ["2"] })).toBe("sample-size-for-half-width");
    expect(wish({ n: ["64"], "half-width": ["2"], solve: ["sd"] })).toBe("half-width:sd");
  });

  it("solves for what is nearest to the effect as it was given", () => {
    const nearest = (name: string, needs: string[]) => nearestSought(testCalled(name), needs)?.name;
    expect(nearest("two-means", ["means", "sd"])).toBe("mean-difference");
    expect(nearest("two-means", ["effect-d"])).toBe("effect-d");
    expect(nearest("mean", ["mean", "sd"])).toBe("mean");
    expect(nearest("anova", ["means", "sd"])).toBe("effect-f");
    expect(nearest("proportion", ["proportion", "null"])).toBe("proportion");
  });

  it("keeps the form of the effect from question to question", () => {
    expect(nearestForm(twoMeans, "power", ["effect-d"]).key).toBe("effect-d");
    expect(nearestForm(twoMeans, "half-width", ["means", "sd"]).key).toBe("sd");
  });
});

describe("a test that the page has never heard of", () => {
  let strange: Test;
  beforeAll(() => {
    const text = JSON.stringify(testCalled("mean"))
      .replaceAll('"mean"', '"level-of-zinc"')
      .replaceAll('"sd"', '"scatter"')
      .replaceAll('"effect-d"', '"effect-z"');
    strange = { ...(JSON.parse(text) as Test), name: "zinc", title: "Test of zinc" };
  });

  it("has its forms, fields and address", () => {
    const keys = formsOf(strange, "sample-size").map(({ key }) => key);
    expect(keys.filter((key) => !/margin|equivalence/.test(key))).toEqual(["level-of-zinc+scatter", "effect-z"]);
    const design = designOf(strange, { "level-of-zinc": ["4"], scatter: ["2"], power: ["0.9"] });
    expect(inputsOf(strange, design).inputs).toEqual({ "level-of-zinc": 4, scatter: 2, power: 0.9 });
    expect(writeDesign(strange, design)).toBe("zinc?level-of-zinc=4&scatter=2&power=0.9");
    expect(readDesign([strange], "zinc?level-of-zinc=4&scatter=2&power=0.9")).toEqual(design);
  });
});
