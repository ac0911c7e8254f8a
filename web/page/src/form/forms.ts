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
}

function isFlag(test: Test, name: string): boolean {
  return parameterOf(test, name)?.kind === "flag";
}

function effectNeeds(test: Test, route: Route): string[] {
  return route.needs.filter((name) => name !== "n" && !isFlag(test, name));
}

/** Whether one form is another with its list written as single numbers: proportion1 and proportion2 for proportions. */
function isSpelledOut(form: Form, of: Form): boolean {
  const own = form.needs.filter((name) => !of.needs.includes(name));
  const [list, ...rest] = of.needs.filter((name) => !form.needs.includes(name));
  return rest.length === 0 && own.length > 1 && own.every((name, i) => name === `${list?.replace(/s$/, "")}${i + 1}`);
}

/** Flags of which each route of a form needs one, and no more: what it is that the test shows. */
export function eitherOf(form: Form): string[] {
  const together = (one: string, other: string) =>
    one !== other && form.routes.some(({ needs }) => needs.includes(one) && needs.includes(other));
  for (const flag of form.flags) {
    const group = form.flags.filter((other) => !together(flag, other));
    if (form.routes.every(({ needs }) => group.filter((one) => needs.includes(one)).length === 1)) return group;
  }
  return [];
}

function joinWords(words: string[]): string {
  const last = words.at(-1) ?? "";
  return words.length < 2 ? last : `${words.slice(0, -1).join(", ")} and ${last}`;
}

/** Whether a table among the needs tells an input by its size. */
function isTold(test: Test, needs: readonly string[], name: string): boolean {
  return parametersOf(test, needs).some(({ rows, columns }) => rows === name || columns === name);
}

/** What tells a form from others, in the labels of its inputs. */
export function labelOfForm(test: Test, wish: Wish, form: Form, others: readonly Form[]): string {
  const sought = soughtBy(test, wish)?.name;
  const needs = form.needs.filter((name) => !isTold(test, form.needs, name));
  const telling = needs.filter((name) => name !== sought && !others.every((other) => other.needs.includes(name)));
  return joinWords(parametersOf(test, telling.length > 0 ? telling : needs).map(({ label }) => label));
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
      forms.push({ key, needs, routes: [route], flags: [...flags] });
    }
  }
  return forms;
}

/** The forms to choose from: without those that only spell out another one, unless one is chosen. */
export function offeredOf(forms: readonly Form[], chosen: string): Form[] {
  return forms.filter((form) => form.key === chosen || !forms.some((other) => isSpelledOut(form, other)));
}

export function formOf(test: Test, wish: Wish, key: string): Form {
  const forms = formsOf(test, wish);
  const form = forms.find((one) => one.key === key) ?? forms[0];
  if (!form) throw new Error(`${test.name} does not answer ${wish}`);
  return form;
}

/** The form that is most like one with these needs. */
export function nearestOf(forms: readonly Form[], needs: readonly string[]): Form | undefined {
  const score = (form: Form) => 2 * form.needs.filter((name) => needs.includes(name)).length - form.needs.length;
  return forms.reduce<Form | undefined>((best, form) => (best && score(best) >= score(form) ? best : form), undefined);
}

/** The form for another wish that is most like the one chosen. */
export function nearestForm(test: Test, wish: Wish, needs: readonly string[]): Form {
  return nearestOf(formsOf(test, wish), needs) ?? formOf(test, wish, "");
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
