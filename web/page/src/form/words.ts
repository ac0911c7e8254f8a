// What the page says of an input, from its description.

import type { Parameter, Test } from "../contract";
import { showCount, showFigure } from "../numbers";
import { addedHelp, texts } from "../texts";

export function labelOf(test: Test, name: string): string {
  const plain = name.replace(/^target-/, "");
  const parameter =
    test.parameters.find((one) => one.name === name) ?? test.parameters.find((one) => one.name === plain);
  return parameter?.label ?? name;
}

export function capital(text: string): string {
  return text.charAt(0).toUpperCase() + text.slice(1);
}

/** A sentence of the core with the labels of inputs in place of their names in braces. */
export function inLabels(test: { parameters: readonly Pick<Parameter, "name" | "label">[] }, template: string): string {
  const label = (name: string) => test.parameters.find((one) => one.name === name)?.label ?? name;
  return capital(template.replace(/\{([a-z0-9-]+)\}/g, (_, name: string) => label(name)));
}

function showLimit(value: number): string {
  return Math.abs(value) >= 10000 ? showCount(value) : showFigure(value);
}

/** The limits of an input in words; those that nobody comes near are not said. */
export function limitsOf(parameter: Parameter): string {
  const { minimum, maximum, "exclusive-minimum": above, "exclusive-maximum": below } = parameter.limits;
  const say = texts.limits;
  const far = 10000;
  const lowest = minimum ?? above;
  const highest = maximum ?? below;
  const hasLow = lowest !== undefined && lowest > -far;
  const hasHigh = highest !== undefined && highest < far;
  if (hasLow && hasHigh) {
    const words = minimum === undefined || maximum === undefined ? say.between : say.range;
    return words(showLimit(lowest), showLimit(highest));
  }
  if (hasLow) return minimum === undefined ? say.above(showLimit(lowest)) : say.atLeast(showLimit(lowest));
  if (hasHigh) return maximum === undefined ? say.below(showLimit(highest)) : say.atMost(showLimit(highest));
  return "";
}

/** What is taken where a field is left empty. */
export function presetOf(parameter: Parameter): string {
  return typeof parameter.default === "number" ? texts.limits.preset(showFigure(parameter.default)) : "";
}

/** The help of a field: its meaning, unit, limits, and what the page adds. */
export function helpOf(
  test: { parameters: readonly Pick<Parameter, "name" | "label">[] },
  parameter: Parameter,
): string {
  const limits = parameter.kind === "choice" || parameter.kind === "flag" ? "" : limitsOf(parameter);
  const meaning = inLabels(test, parameter.meaning);
  const parts = [parameter.unit ? `${meaning} (${parameter.unit})` : meaning, limits, addedHelp[parameter.name] ?? ""];
  return parts.filter((part) => part !== "").join("; ");
}
