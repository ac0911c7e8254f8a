// A design as it is typed, and its fields.

import type { Parameter, Route, Test } from "../contract";
import { readNumber } from "../numbers";
import { places, suggestions } from "../texts";
import { type Form, formOf, formsOf, parametersOf, routeOf } from "./forms";
import { parameterOf, soughtBy, targetOf, type Wish } from "./wishes";

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
