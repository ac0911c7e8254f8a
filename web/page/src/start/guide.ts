// Three questions that narrow the tests down, answered from the properties of their descriptions.

import type { Test } from "../contract";

export type Measure = "number" | "yesNo" | "relation";
export type Groups = "one" | "pairs" | "two" | "more";
export type Aim = "compare" | "estimate";

export interface Guide {
  measure: Measure | "";
  groups: Groups | "";
  aim: Aim | "";
}

export const noGuide: Guide = { measure: "", groups: "", aim: "" };

/** What a test measures. A proportion or a spread among its inputs tells it; what has neither relates variables. */
export function measureOf(test: Test): Measure {
  const has = (pattern: RegExp) => test.parameters.some(({ name }) => pattern.test(name));
  if (has(/^(proportion|p\d\d$)/)) return "yesNo";
  return has(/^sds?(-|$)/) && has(/^means?$/) ? "number" : "relation";
}

/** Of whom a test measures it. Two measurements of the same subjects are counted as pairs. */
export function groupsOfTest(test: Test): Groups {
  if (test.counted === "pairs") return "pairs";
  if (test.groups === "k") return "more";
  return test.groups === 2 ? "two" : "one";
}

export function answers(test: Test, aim: Aim): boolean {
  const question = aim === "compare" ? "sample-size" : "half-width";
  return test.routes.some((route) => route.question === question);
}

/** Whether a test fits what has been answered. Groups are not asked of variables that are related. */
export function fits(test: Test, guide: Guide): boolean {
  const measure = measureOf(test);
  if (guide.measure !== "" && measure !== guide.measure) return false;
  const asksGroups = guide.groups !== "" && !(guide.measure === "relation" && guide.groups === "one");
  if (asksGroups && (measure === "relation" ? guide.groups !== "one" : groupsOfTest(test) !== guide.groups))
    return false;
  return guide.aim === "" || answers(test, guide.aim);
}

/** The question that a test opens with. */
export function wishFor(test: Test, aim: Aim | ""): string {
  if (aim === "estimate" && answers(test, aim)) return "sample-size-for-half-width";
  return test.routes.some(({ question }) => question === "sample-size")
    ? "sample-size"
    : (test.routes[0]?.question ?? "power");
}

export interface Shelf {
  kind: Measure;
  tests: Test[];
}

const order: readonly Groups[] = ["one", "pairs", "two", "more"];

/** The tests by what they measure, those of few groups first. */
export function shelvesOf(tests: readonly Test[]): Shelf[] {
  const kinds: readonly Measure[] = ["number", "yesNo", "relation"];
  const place = (test: Test) => order.indexOf(groupsOfTest(test));
  return kinds
    .map((kind) => ({
      kind,
      tests: tests.filter((test) => measureOf(test) === kind).sort((a, b) => place(a) - place(b)),
    }))
    .filter((shelf) => shelf.tests.length > 0);
}
