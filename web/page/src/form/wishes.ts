// What can be asked of a test: a question of its routes, or a number that it can be solved for.

import type { Parameter, Question, Route, Test } from "../contract";

/** A question, or the question whose target is given and the number that is not: "power:effect-d". */
export type Wish = string;

/** The order in which questions are offered. */
export const questions: readonly Question[] = ["sample-size", "power", "half-width", "sample-size-for-half-width"];

export interface Sought {
  wish: Wish;
  name: string;
  target: "power" | "half-width";
  /** There is an answer on either side of no effect. */
  below: boolean;
}

export function parameterOf(test: Test, name: string): Parameter | undefined {
  return test.parameters.find((parameter) => parameter.name === name);
}

function routesOf(test: Test, question: Question): Route[] {
  return test.routes.filter((route) => route.question === question);
}

export function questionsOf(test: Test): Question[] {
  return questions.filter((question) => routesOf(test, question).length > 0);
}

/** The numbers that can be solved for, those of the test's unknowns first. */
export function soughtOf(test: Test): Sought[] {
  const found: Sought[] = [];
  for (const { name, target, below } of test.unknowns) {
    if (target !== "power" && target !== "half-width") continue;
    found.push({ wish: `${target}:${name}`, name, target, below });
  }
  for (const name of parameterOf(test, "solve")?.choices ?? []) {
    if (found.some((sought) => sought.name === name)) continue;
    const target = test.routes.some((route) => route.question === "sample-size" && route.accepts.includes(name))
      ? "power"
      : "half-width";
    found.push({ wish: `${target}:${name}`, name, target, below: false });
  }
  return found;
}

export function soughtBy(test: Test, wish: Wish): Sought | undefined {
  return soughtOf(test).find((sought) => sought.wish === wish);
}

export function isWishOf(test: Test, wish: Wish): boolean {
  return questionsOf(test).some((question) => question === wish) || soughtBy(test, wish) !== undefined;
}

/** The input that a wish wants to be reached, if it does. */
export function targetOf(wish: Wish): "power" | "half-width" | undefined {
  if (wish === "sample-size") return "power";
  if (wish === "sample-size-for-half-width") return "half-width";
  if (wish.startsWith("power:")) return "power";
  return wish.startsWith("half-width:") ? "half-width" : undefined;
}

/** The routes that can answer a wish. */
export function routesFor(test: Test, wish: Wish): Route[] {
  const sought = soughtBy(test, wish);
  if (!sought) return test.routes.filter((route) => route.question === wish);
  const routes = routesOf(test, sought.target);
  const taking = routes.filter((route) => [...route.needs, ...route.accepts].includes(sought.name));
  return taking.length > 0 ? taking : routes;
}

/**
 * The number to solve for that is nearest to the effect as it is given: the effect itself, or one that shares an input
 * with it, or the first.
 */
export function nearestSought(test: Test, needs: readonly string[]): Sought | undefined {
  const all = soughtOf(test).filter(({ target }) => target === "power");
  const shares = ({ name }: Sought) =>
    !needs.includes(name) &&
    test.routes.some((route) => route.needs.includes(name) && route.needs.some((need) => needs.includes(need)));
  return all.find(({ name }) => name === needs[0]) ?? all.find(shares) ?? all[0];
}
