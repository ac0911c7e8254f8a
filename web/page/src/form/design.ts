// A design as it is typed, and the route that answers it.

import type { Parameter, Route, Test } from "../contract";
import { eitherOf, formOf, parametersOf, routeOf } from "./forms";
import { soughtBy, type Wish } from "./wishes";

/** What was typed, by input. A flag that is set is ["yes"]; one text stands for every group where an input spreads. */
export type Texts = Readonly<Record<string, readonly string[]>>;

export interface Design {
  readonly test: string;
  readonly wish: Wish;
  readonly form: string;
  readonly texts: Texts;
}

export function isSet(design: Design, flag: string): boolean {
  return design.texts[flag]?.[0] === "yes";
}

/** The one that is chosen of the flags of which the form needs one. */
export function chosenFlag(test: Test, design: Design): string | undefined {
  const either = eitherOf(formOf(test, design.wish, design.form));
  return either.find((flag) => isSet(design, flag)) ?? either[0];
}

export function currentRoute(test: Test, design: Design): Route {
  const form = formOf(test, design.wish, design.form);
  const either = eitherOf(form);
  const chosen = chosenFlag(test, design);
  return routeOf(form, (flag) => (either.includes(flag) ? flag === chosen : isSet(design, flag)));
}

/** The inputs that tell the effect, without the one that is asked for. */
export function effectOf(test: Test, design: Design): Parameter[] {
  const sought = soughtBy(test, design.wish)?.name;
  const { needs } = formOf(test, design.wish, design.form);
  return parametersOf(
    test,
    needs.filter((name) => name !== sought),
  );
}
