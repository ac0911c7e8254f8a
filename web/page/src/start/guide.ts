// Three questions that narrow the tests down, answered from what their descriptions say.

import type { Test } from "../contract";
import { aimsOf, withAim } from "../form/aims";
import type { Design } from "../form/design";
import { emptyDesign } from "../form/parts";

export type Measure = "number" | "rank" | "spread" | "yesNo" | "category" | "relation";
export type Groups = "one" | "pairs" | "two" | "more";
export type Aim = "compare" | "margin" | "estimate";

export interface Guide {
  measure: Measure | "";
  groups: Groups | "";
  aim: Aim | "";
}

export const noGuide: Guide = { measure: "", groups: "", aim: "" };

/** What a title says of the outcome, the most telling words first. */
const titled: readonly [Measure, RegExp][] = [
  ["relation", /correlation|regression|predictor/i],
  ["yesNo", /proportion/i],
  ["number", /\bmeans?\b|analysis of (co)?variance|crossover/i],
  ["spread", /variance/i],
];

/** What the sentence about a test says of it. */
const described: readonly [Measure, RegExp][] = [
  ["rank", /\branks\b|ordinal/i],
  ["category", /categor/i],
  ["relation", /correlation|predictor/i],
  ["yesNo", /proportion/i],
];

/** What a test measures: a number, where its words tell nothing else. */
export function measureOf(test: Test): Measure {
  const found =
    titled.find(([, words]) => words.test(test.title)) ?? described.find(([, words]) => words.test(test.about));
  return found?.[0] ?? "number";
}

/** Whom a test measures. Where subjects are counted as against observations, each is measured more than once. */
export function groupsOfTest(test: Test): Groups[] {
  const words = `${test.title} ${test.about}`;
  const repeats = test.counted === "pairs" || test.counted === "subjects";
  const found: Groups[] = repeats ? ["pairs"] : [];
  if (test.groups === 1 && !repeats) found.push("one");
  if (test.groups === 1 && !repeats && /\bpairs\b/.test(words)) found.push("pairs");
  if (test.groups === 2 && !repeats) found.push("two");
  if (test.groups === "k" || /several groups/.test(words)) found.push("more");
  return found;
}

export function answers(test: Test, aim: Aim): boolean {
  if (aim === "margin") return aimsOf(test, "sample-size").some(({ extra }) => extra.includes("margin"));
  const question = aim === "compare" ? "sample-size" : "half-width";
  return test.routes.some((route) => route.question === question);
}

/** Whether a test measures this. A share in several groups is one of categories, of which there are two. */
function measures(test: Test, measure: Measure, groups: Groups | ""): boolean {
  const own = measureOf(test);
  return own === measure || (measure === "yesNo" && groups === "more" && own === "category");
}

/** Whether a test fits what has been answered. */
export function fits(test: Test, guide: Guide): boolean {
  if (guide.measure !== "" && !measures(test, guide.measure, guide.groups)) return false;
  if (guide.groups !== "" && !groupsOfTest(test).includes(guide.groups)) return false;
  return guide.aim === "" || answers(test, guide.aim);
}

/** The question that a test opens with. */
export function wishFor(test: Test, aim: Aim | ""): string {
  if (aim === "estimate" && answers(test, aim)) return "sample-size-for-half-width";
  return test.routes.some(({ question }) => question === "sample-size")
    ? "sample-size"
    : (test.routes[0]?.question ?? "power");
}

/** The design that a test opens with. */
export function designFor(test: Test, aim: Aim | ""): Design {
  const design = emptyDesign(test, wishFor(test, aim));
  const margin = aim === "margin" ? aimsOf(test, design.wish).find(({ extra }) => extra.includes("margin")) : undefined;
  return margin ? withAim(test, design, margin) : design;
}

export interface Shelf {
  kind: Measure;
  tests: Test[];
}

const order: readonly Groups[] = ["one", "pairs", "two", "more"];

/** The tests by what they measure, those of few groups first. */
export function shelvesOf(tests: readonly Test[]): Shelf[] {
  const kinds: readonly Measure[] = ["number", "rank", "spread", "yesNo", "category", "relation"];
  const place = (test: Test) => order.indexOf(groupsOfTest(test).at(-1) ?? "one");
  return kinds
    .map((kind) => ({
      kind,
      tests: tests.filter((test) => measureOf(test) === kind).sort((a, b) => place(a) - place(b)),
    }))
    .filter((shelf) => shelf.tests.length > 0);
}
