// What a design gives to the core: the values of its fields, and what they lack.

import type { Parameter, Test, Value } from "../contract";
import { readNumber, splitList } from "../numbers";
import type { Design } from "./design";
import { fieldsOf } from "./parts";
import { entriesOf } from "./shape";
import { soughtBy } from "./wishes";

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
  const texts =
    parameter.kind === "list" && entries.length === 1
      ? splitList(entries[0] ?? "", parameter.limits.whole === true)
      : entries;
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

/** Whether two designs give the core the same. */
export function sameDesign(test: Test, a: Design, b: Design): boolean {
  return (
    a.wish === b.wish && a.form === b.form && JSON.stringify(inputsOf(test, a)) === JSON.stringify(inputsOf(test, b))
  );
}
