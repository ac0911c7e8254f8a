// A design from inputs in the words of the program: of an address, an example or a file.

import type { Parameter, Test, Unknown } from "../contract";
import type { Design } from "./design";
import { type Form, formsOf } from "./forms";
import { emptyDesign } from "./parts";
import { countOfTest } from "./shape";
import { questionsOf, soughtBy, type Wish } from "./wishes";

/** Whether a number is all that a route lacks which takes whatever else is given. */
function isLeftOut(test: Test, given: ReadonlySet<string>, { name, target }: Unknown): boolean {
  const around = new Set([target, "alpha", "below"]);
  return test.routes.some(({ question, needs, accepts }) => {
    if (question !== target || given.has(name)) return false;
    const lacking = needs.filter((need) => !given.has(need));
    const taken = (one: string) => around.has(one) || needs.includes(one) || accepts.includes(one);
    return lacking.length === 1 && lacking[0] === name && [...given].every(taken);
  });
}

/** The question that inputs ask, as the core finds it. */
function wishOf(test: Test, given: ReadonlySet<string>, solve: string | undefined): Wish {
  const target = given.has("half-width") ? "half-width" : "power";
  if (solve && soughtBy(test, `${target}:${solve}`)) return `${target}:${solve}`;
  if (given.has("n") && given.has(target)) {
    const missing = test.unknowns.find((unknown) => unknown.target === target && isLeftOut(test, given, unknown));
    if (missing) return `${target}:${missing.name}`;
  }
  if (given.has("half-width")) return "sample-size-for-half-width";
  if (given.has("interval")) return "half-width";
  return given.has("power") && !given.has("n") ? "sample-size" : "power";
}

function formFor(test: Test, wish: Wish, given: ReadonlySet<string>): string {
  const score = (form: Form) => {
    const names = form.routes.flatMap((route) => [...route.needs, ...route.accepts]);
    const has = form.needs.filter((name) => given.has(name)).length;
    const strange = [...given].filter((name) => !names.includes(name)).length;
    return 2 * has - form.needs.length - strange / 100;
  };
  const forms = formsOf(test, wish);
  const best = forms.reduce((a, b) => (score(b) > score(a) ? b : a));
  return best.key;
}

function textsOf(parameter: Parameter, words: readonly string[]): string[] {
  if (parameter.kind === "flag") return words[0] === "no" || words[0] === "false" ? [] : ["yes"];
  if (parameter.kind === "number" || parameter.kind === "choice") return [words.join(",")];
  return [...words];
}

/** The design of inputs in the words of the program, by name. Unknown names are left out, empty ones tell the form. */
export function designOf(test: Test, words: Readonly<Record<string, readonly string[]>>): Design {
  const given = new Set<string>();
  const texts: Record<string, string[]> = {};
  for (const [name, value] of Object.entries(words)) {
    const parameter = test.parameters.find((one) => one.name === name || one.aliases.includes(name));
    if (!parameter) continue;
    const typed = textsOf(parameter, value);
    if (parameter.kind === "flag" && typed.length === 0) continue;
    given.add(parameter.name);
    if (typed.some((text) => text !== "")) texts[parameter.name] = typed;
  }
  if (given.size === 0) return emptyDesign(test, questionsOf(test)[0] ?? "power");
  let wish = wishOf(test, given, texts["solve"]?.[0]);
  if (formsOf(test, wish).length === 0) wish = test.routes[0]?.question ?? "power";
  for (const name of ["solve", "interval"]) delete texts[name];
  const listed = test.parameters.find(({ kind, name }) => kind === "per-group" && (texts[name]?.length ?? 0) > 1);
  const count = countOfTest(test);
  if (listed && count && !given.has(count.name)) texts[count.name] = [String(texts[listed.name]?.length)];
  for (const { name, default: standard } of test.parameters) {
    if (typeof standard === "number" && !given.has(name)) texts[name] = [String(standard)];
  }
  return { test: test.name, wish, form: formFor(test, wish, given), texts };
}

/** Inputs in the words of the program. */
export function wordsOf(inputs: Readonly<Record<string, unknown>>): Record<string, string[]> {
  const words: Record<string, string[]> = {};
  for (const [name, value] of Object.entries(inputs)) {
    if (value === false || value === null || value === undefined) continue;
    words[name] = value === true ? ["yes"] : Array.isArray(value) ? value.map(String) : [String(value)];
  }
  return words;
}
