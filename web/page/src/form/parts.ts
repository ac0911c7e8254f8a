// The fields of a design.

import type { Parameter, Route, Test } from "../contract";
import { places, suggestions } from "../texts";
import { chosenFlag, currentRoute, type Design, effectOf } from "./design";
import { eitherOf, type Form, formOf, formsOf, parametersOf } from "./forms";
import { countOf, countOfTest, groupsTeller, isCount, tableThatTells, usualCount, usualLevels } from "./shape";
import { parameterOf, soughtBy, targetOf, type Wish } from "./wishes";

export interface Field {
  parameter: Parameter;
  part: "aim" | "effect" | "size" | "target" | "option" | "study";
  needed: boolean;
}

function optionsOf(test: Test, form: Form, route: Route, wish: Wish): string[] {
  const sought = soughtBy(test, wish);
  const either = eitherOf(form);
  const names = ["alpha", ...form.flags.filter((flag) => !either.includes(flag)), ...route.accepts];
  if (sought?.below && parameterOf(test, "below")) names.push("below");
  return [...new Set(names)].filter((name) => name !== sought?.name);
}

/** The fields of a design, in the order in which they are shown. */
export function fieldsOf(test: Test, design: Design): Field[] {
  const form = formOf(test, design.wish, design.form);
  const route = currentRoute(test, design);
  const fields: Field[] = [];
  const add = (part: Field["part"], needed: boolean, parameters: Parameter[]) => {
    for (const parameter of parameters) fields.push({ parameter, part, needed });
  };
  add("aim", true, parametersOf(test, [chosenFlag(test, design) ?? ""]));
  add("effect", true, effectOf(test, design));
  const count = countOf(test, design);
  if (count && !groupsTeller(test, design)) add("size", usualCount(count) > 1, [count]);
  const sizes = route.needs.filter((name) => name === "n");
  add("size", true, parametersOf(test, sizes));
  const target = targetOf(design.wish);
  if (target) add("target", true, parametersOf(test, [target]));
  // Boxes to tick stand after what is typed.
  const options = parametersOf(test, optionsOf(test, form, route, design.wish)).filter((one) => !isCount(one));
  const ticked = options.filter(({ kind }) => kind === "flag");
  for (const parameter of [...options.filter(({ kind }) => kind !== "flag"), ...ticked]) {
    add(places[parameter.name] ?? "option", false, [parameter]);
  }
  return fields;
}

/** The fields that are shown: what a table tells by its size, and an aim that is chosen, need none. */
export function shownFields(test: Test, design: Design): Field[] {
  return fieldsOf(test, design).filter(
    ({ parameter, part }) => part !== "aim" && !tableThatTells(test, design, parameter),
  );
}

/** What a new design begins with. */
function usualText(test: Test, parameter: Parameter): string {
  const { name, kind, role, default: standard } = parameter;
  if (suggestions[name]) return suggestions[name];
  if (typeof standard === "number") return String(standard);
  if (role === "shape" && kind === "list") return usualLevels.join("; ");
  return parameter === countOfTest(test) && usualCount(parameter) > 1 ? String(usualCount(parameter)) : "";
}

/** The design that a test begins with: nothing is given but what is usual. */
export function emptyDesign(test: Test, wish: Wish): Design {
  const texts: Record<string, string[]> = {};
  for (const parameter of test.parameters) {
    const usual = usualText(test, parameter);
    if (usual !== "") texts[parameter.name] = [usual];
  }
  return { test: test.name, wish, form: formsOf(test, wish)[0]?.key ?? "", texts };
}
