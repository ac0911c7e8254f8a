// A design as it is typed, its fields, and the request to the core that it makes.

import type { Parameter, Route, Test, Unknown, Value } from "../contract";
import { readNumber, splitList } from "../numbers";
import { places, suggestions } from "../texts";
import { type Form, formOf, formsOf, parametersOf, routeOf } from "./forms";
import { parameterOf, questionsOf, soughtBy, targetOf, type Wish } from "./wishes";

/** What was typed, by input. A flag that is set is ["yes"]; one text stands for every group where an input spreads. */
export type Texts = Readonly<Record<string, readonly string[]>>;

export interface Design {
  readonly test: string;
  readonly wish: Wish;
  readonly form: string;
  readonly texts: Texts;
}

export interface Field {
  parameter: Parameter;
  part: "effect" | "size" | "target" | "option" | "study";
  needed: boolean;
}

export const mostEntries = 100;
const usualGroups = 3;

export function isSet(design: Design, flag: string): boolean {
  return design.texts[flag]?.[0] === "yes";
}

export function currentRoute(test: Test, design: Design): Route {
  return routeOf(formOf(test, design.wish, design.form), (flag) => isSet(design, flag));
}

/** Whether a list tells by its entries how many groups there are. */
function tellsGroups(parameter: Parameter | undefined): boolean {
  return parameter?.kind === "per-group" && !parameter.spreads;
}

function optionsOf(test: Test, form: Form, route: Route, wish: Wish): string[] {
  const sought = soughtBy(test, wish);
  const names = ["alpha", ...form.flags, ...route.accepts];
  if (sought?.below && parameterOf(test, "below")) names.push("below");
  return [...new Set(names)].filter((name) => name !== sought?.name && name !== "groups");
}

/** The fields of a design, in the order in which they are shown. */
export function fieldsOf(test: Test, design: Design): Field[] {
  const form = formOf(test, design.wish, design.form);
  const route = currentRoute(test, design);
  const sought = soughtBy(test, design.wish)?.name;
  const effect = parametersOf(
    test,
    form.needs.filter((name) => name !== sought),
  );
  const fields: Field[] = [];
  const add = (part: Field["part"], needed: boolean, parameters: Parameter[]) => {
    for (const parameter of parameters) fields.push({ parameter, part, needed });
  };
  add("effect", true, effect);
  const counted = route.accepts.includes("groups") && !effect.some(tellsGroups);
  if (counted) add("size", true, parametersOf(test, ["groups"]));
  add(
    "size",
    true,
    parametersOf(
      test,
      route.needs.filter((name) => name === "n"),
    ),
  );
  const target = targetOf(design.wish);
  if (target) add("target", true, parametersOf(test, [target]));
  // Boxes to tick stand after what is typed.
  const options = parametersOf(test, optionsOf(test, form, route, design.wish));
  const ticked = options.filter(({ kind }) => kind === "flag");
  for (const parameter of [...options.filter(({ kind }) => kind !== "flag"), ...ticked]) {
    add(places[parameter.name] ?? "option", false, [parameter]);
  }
  return fields;
}

/** How many groups a design has. */
export function groupsOf(test: Test, design: Design): number {
  if (typeof test.groups === "number") return test.groups;
  const fields = fieldsOf(test, design);
  const list = fields.find(({ parameter }) => tellsGroups(parameter));
  if (list) return Math.max(design.texts[list.parameter.name]?.length ?? usualGroups, 2);
  const reading = readNumber(design.texts["groups"]?.[0] ?? "", true);
  const typed = "value" in reading && reading.value >= 2 ? Math.floor(reading.value) : usualGroups;
  return Math.min(typed, mostEntries);
}

/** The texts of an input's entries, as many as it has now. */
export function entriesOf(test: Test, design: Design, parameter: Parameter): readonly string[] {
  const texts = design.texts[parameter.name] ?? [];
  if (parameter.kind === "list" && !parameter.length) return [texts.join("; ")];
  const length =
    parameter.kind === "list" ? (parameter.length ?? 1) : parameter.kind === "per-group" ? groupsOf(test, design) : 1;
  if (parameter.spreads && texts.length < 2) return [texts[0] ?? ""];
  return Array.from({ length }, (_, i) => texts[i] ?? "");
}

export type Lack = { parameter: Parameter; unclear?: string };

function readList(parameter: Parameter, texts: readonly string[]): Value | Lack {
  const whole = parameter.limits.whole === true;
  const readings = texts.map((text) => readNumber(text, whole));
  for (const reading of readings) if ("unclear" in reading) return { parameter, unclear: reading.unclear };
  if (readings.some((reading) => "text" in reading)) return texts.map((text) => text.trim()).join("; ");
  return readings.flatMap((reading) => ("value" in reading ? [reading.value] : []));
}

/** The value of an input for the core, nothing where it is not given, or what keeps it from being read. */
export function valueOf(parameter: Parameter, entries: readonly string[]): Value | Lack | undefined {
  if (entries.every((text) => text.trim() === "")) return undefined;
  if (parameter.kind === "flag") return entries[0] === "yes";
  if (parameter.kind === "choice") return entries[0];
  if (entries.some((text) => text.trim() === "")) return { parameter };
  if (parameter.kind === "number") {
    const reading = readNumber(entries[0] ?? "", parameter.limits.whole === true);
    if ("unclear" in reading) return { parameter, unclear: reading.unclear };
    return "value" in reading ? reading.value : reading.text;
  }
  const texts = parameter.kind === "list" && !parameter.length ? splitList(entries[0] ?? "") : entries;
  return readList(parameter, texts);
}

export function isLack(value: Value | Lack | undefined): value is Lack {
  return typeof value === "object" && !Array.isArray(value);
}

function isDefault(parameter: Parameter, value: Value): boolean {
  return JSON.stringify(value) === JSON.stringify(parameter.default ?? (parameter.kind === "flag" ? false : undefined));
}

export type Inputs = Record<string, Value>;

/** The inputs that a design gives to the core, and what it lacks. */
export function inputsOf(test: Test, design: Design): { inputs: Inputs; lacks: Lack[] } {
  const inputs: Inputs = {};
  const lacks: Lack[] = [];
  for (const { parameter, needed } of fieldsOf(test, design)) {
    const value = valueOf(parameter, entriesOf(test, design, parameter));
    if (value === undefined) {
      if (needed) lacks.push({ parameter });
    } else if (isLack(value)) {
      lacks.push(value);
    } else if (needed || !isDefault(parameter, value)) {
      inputs[parameter.name] = value;
    }
  }
  const sought = soughtBy(test, design.wish);
  if (sought) inputs["solve"] = sought.name;
  if (design.wish === "half-width") inputs["interval"] = true;
  return { inputs, lacks };
}

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
  if (listed && !given.has("groups") && parameterOf(test, "groups"))
    texts["groups"] = [String(texts[listed.name]?.length)];
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

/** The design that a test begins with: nothing is given but what is usual. */
export function emptyDesign(test: Test, wish: Wish): Design {
  const texts: Record<string, string[]> = {};
  for (const parameter of test.parameters) {
    const usual =
      suggestions[parameter.name] ?? (typeof parameter.default === "number" ? String(parameter.default) : "");
    if (usual !== "") texts[parameter.name] = [usual];
  }
  return { test: test.name, wish, form: formsOf(test, wish)[0]?.key ?? "", texts };
}

/** Whether two designs give the core the same. */
export function sameDesign(test: Test, a: Design, b: Design): boolean {
  return (
    a.wish === b.wish && a.form === b.form && JSON.stringify(inputsOf(test, a)) === JSON.stringify(inputsOf(test, b))
  );
}
