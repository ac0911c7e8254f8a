// The forms in which an effect can be given: the routes that answer a wish, by the inputs that they need.

import type { Parameter, Route, Test } from "../contract";
import { parameterOf, routesFor, soughtBy, type Wish } from "./wishes";

export interface Form {
  key: string;
  /** Inputs that tell the effect, without the sizes and flags. */
  needs: string[];
  routes: Route[];
  /** Flags that choose among the routes. */
  flags: string[];
  label: string;
}

function isFlag(test: Test, name: string): boolean {
  return parameterOf(test, name)?.kind === "flag";
}

function effectNeeds(test: Test, route: Route): string[] {
  return route.needs.filter((name) => name !== "n" && !isFlag(test, name));
}

/** Whether one form is another with its list written as single numbers: proportion1 and proportion2 for proportions. */
function isSpelledOut(form: Form, of: Form): boolean {
  const [list] = of.needs;
  return (
    of.needs.length === 1 &&
    form.needs.length > 1 &&
    form.needs.every((name, i) => `${name}` === `${list?.replace(/s$/, "")}${i + 1}`)
  );
}

function joinWords(words: string[]): string {
  const last = words.at(-1) ?? "";
  return words.length < 2 ? last : `${words.slice(0, -1).join(", ")} and ${last}`;
}

function labelOf(test: Test, needs: string[], shared: string[], sought: string | undefined): string {
  const telling = needs.filter((name) => !shared.includes(name) && name !== sought);
  const labels = telling.map((name) => parameterOf(test, name)?.label ?? name);
  return labels.length > 0 ? joinWords(labels) : joinWords(needs.map((name) => parameterOf(test, name)?.label ?? name));
}

/** All forms that answer a wish, in the order of the description. */
export function formsOf(test: Test, wish: Wish): Form[] {
  const forms: Form[] = [];
  for (const route of routesFor(test, wish)) {
    const needs = effectNeeds(test, route);
    const key = needs.join("+");
    const flags = route.needs.filter((name) => isFlag(test, name));
    const known = forms.find((form) => form.key === key);
    if (known) {
      known.routes.push(route);
      known.flags.push(...flags.filter((name) => !known.flags.includes(name)));
    } else {
      forms.push({ key, needs, routes: [route], flags: [...flags], label: "" });
    }
  }
  const shared = (forms[0]?.needs ?? []).filter((name) => forms.every((form) => form.needs.includes(name)));
  const sought = soughtBy(test, wish)?.name;
  for (const form of forms) form.label = labelOf(test, form.needs, shared, sought);
  return forms;
}

/** The forms to choose from: without those that only spell out another one, unless one is chosen. */
export function offeredForms(test: Test, wish: Wish, chosen: string): Form[] {
  const forms = formsOf(test, wish);
  return forms.filter((form) => form.key === chosen || !forms.some((other) => isSpelledOut(form, other)));
}

export function formOf(test: Test, wish: Wish, key: string): Form {
  const forms = formsOf(test, wish);
  const form = forms.find((one) => one.key === key) ?? forms[0];
  if (!form) throw new Error(`${test.name} does not answer ${wish}`);
  return form;
}

/** The form for another wish that is most like the one chosen. */
export function nearestForm(test: Test, wish: Wish, needs: readonly string[]): Form {
  const forms = formsOf(test, wish);
  const score = (form: Form) => 2 * form.needs.filter((name) => needs.includes(name)).length - form.needs.length;
  return forms.reduce((best, form) => (score(form) > score(best) ? form : best), formOf(test, wish, ""));
}

/** The route of a form that needs exactly the flags that are set. */
export function routeOf(form: Form, isSet: (flag: string) => boolean): Route {
  const wanted = form.flags.filter(isSet);
  const exact = form.routes.find((route) =>
    form.flags.every((flag) => route.needs.includes(flag) === wanted.includes(flag)),
  );
  return exact ?? (form.routes[0] as Route);
}

export function parametersOf(test: Test, names: readonly string[]): Parameter[] {
  return names.flatMap((name) => parameterOf(test, name) ?? []);
}
