/** What a picture says of its design: what is held fixed, names of places, sentences of lists. */

import type { Axis } from "./axes";
import { isNumbers } from "./model";
import type { Chart, ChartCurve, Parameter, Test, Value } from "./model";
import { shown, shownPower } from "./numbers";
import { texts } from "./texts";
import type { Quantity } from "./model";

export function shownValue(parameter: Parameter | undefined, value: Value, locale: string): string {
  if (typeof value === "boolean") return value ? texts.yes : texts.no;
  if (typeof value === "string") return parameter?.wordings?.[value] ?? value;
  if (typeof value === "number") return shown(value, locale, 6);
  const isOne = parameter?.kind !== "list" && value.length > 1 && value.every((entry) => entry === value[0]);
  if (isOne) return `${shown(value[0]!, locale, 6)} ${texts.each}`;
  const separator = locale.startsWith("en") ? ", " : "; ";
  return value.map((entry) => shown(entry, locale, 6)).join(separator);
}

export function parameterOf(test: Test, name: string): Parameter | undefined {
  return test.parameters.find((parameter) => parameter.name === name);
}

export function labelOf(test: Test, name: string): string {
  return parameterOf(test, name)?.label ?? name;
}

/** One input in words: "effect size d 0.5", "two-sided". */
export function piece(test: Test, name: string, value: Value, quantity: Quantity, locale: string): string {
  const parameter = parameterOf(test, name);
  if (name === "one-sided") return value ? texts.oneSided : texts.twoSided;
  if (name === "alpha" && quantity === "half-width" && typeof value === "number") {
    return texts.confidence(shown(100 * (1 - value), locale, 6));
  }
  if (typeof value === "boolean") return value && name !== "interval" ? (parameter?.label ?? name) : "";
  if (parameter?.kind === "choice") {
    // A single word, such as a name, does not tell what it is of.
    const words = shownValue(parameter, value, locale);
    return words.includes(" ") ? words : `${parameter.label} ${words}`;
  }
  return `${parameter?.label ?? name} ${shownValue(parameter, value, locale)}`;
}

function inputsBehind(axis: string, inputs: Record<string, Value>): string[] {
  if (/^(n\d*|total)$/.test(axis)) return ["n"];
  const stem = axis.replace(/\d+$/, "");
  const known = [axis, stem, stem + "s"].filter((name) => name in inputs);
  return known.length ? known.slice(0, 1) : [];
}

/** What a chart holds fixed, in pieces. */
export function heldFixed(test: Test, chart: Chart, locale: string): string[] {
  const inputs = chart.curves[0]!.inputs;
  const moving = new Set([...chart.axes.flatMap((axis) => inputsBehind(axis.name, inputs)), "solve"]);
  if (chart.varied) moving.add(chart.varied);
  if (chart.quantity !== "sample-size") for (const target of ["power", "half-width"]) moving.add(target);
  const pieces: string[] = [];
  for (const [name, value] of Object.entries(inputs)) {
    if (moving.has(name)) continue;
    const isSame = chart.curves.every((curve) => JSON.stringify(curve.inputs[name]) === JSON.stringify(value));
    const words = isSame ? piece(test, name, value, chart.quantity, locale) : "";
    if (words) pieces.push(words);
  }
  return pieces;
}

/** What tells a curve from the others. */
export function curveLabel(test: Test, chart: Chart, curve: ChartCurve, locale: string): string {
  if (!chart.varied) return texts.quantity[chart.quantity];
  const value = curve[chart.varied] as Value;
  const parameter = parameterOf(test, chart.varied);
  if (typeof value === "boolean" && chart.varied !== "one-sided")
    return `${parameter?.label ?? chart.varied}: ${value ? texts.yes : texts.no}`;
  return piece(test, chart.varied, value, chart.quantity, locale);
}

/** "n per group = 64". */
export function place(axis: Axis, value: number, locale: string): string {
  return `${axis.symbol} = ${shown(value, locale)}`;
}

/** "64 observations per group"; of what is no size, "effect size d = 0.5". */
export function amount(axis: Axis, value: number, test: Test, locale: string): string {
  if (!axis.isOfSizes) return place(axis, value, locale);
  const count = `${shown(value, locale, 12)} ${test.counted}`;
  const group = /^n(\d+)$/.exec(axis.name);
  if (group) return `${count} ${texts.inGroup(group[1]!)}`;
  if (axis.name === "total") return `${count} ${texts.inTotal}`;
  if (test.groups === 1) return count;
  return `${count} ${/first group/.test(axis.title) ? texts.inFirstGroup : texts.perGroup}`;
}

/** The begin of a sentence about a place: "With 64 observations per group", "At effect size d = 0.5". */
export function where(axis: Axis, value: number, test: Test, locale: string): string {
  return `${axis.isOfSizes ? texts.withSize : texts.atValue} ${amount(axis, value, test, locale)}`;
}

export function shownQuantity(quantity: Quantity, value: number, locale: string): string {
  if (quantity === "power") return shownPower(value, locale);
  return shown(value, locale, quantity === "half-width" ? 4 : 9);
}

/** "n per group = 64, power 0.80". */
export function markText(axis: Axis, at: number, quantity: Quantity, value: number, locale: string): string {
  return `${place(axis, at, locale)}, ${texts.quantity[quantity]} ${shownQuantity(quantity, value, locale)}`;
}

export function capital(text: string): string {
  return text.charAt(0).toUpperCase() + text.slice(1);
}

export function sizesOf(inputs: Record<string, Value>): number[] | null {
  const { n } = inputs;
  return typeof n === "number" ? [n] : isNumbers(n) ? n : null;
}
