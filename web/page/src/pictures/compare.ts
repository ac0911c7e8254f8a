/** Inputs that can have several values at once, a curve for each. */

import { isNumbers } from "./model";
import type { Chart, Limits, Parameter, Test, Value } from "./model";
import { labelOf, parameterOf } from "./caption";

export interface Comparable {
  name: string;
  label: string;
  isNumber: boolean;
  usual: Value[];
}

function allows(limits: Limits | undefined, value: number): boolean {
  if (!limits) return true;
  const { minimum, maximum, whole } = limits;
  const above = limits["exclusive-minimum"];
  const below = limits["exclusive-maximum"];
  if (minimum !== undefined && value < minimum) return false;
  if (maximum !== undefined && value > maximum) return false;
  if (above !== undefined && value <= above) return false;
  if (below !== undefined && value >= below) return false;
  return !whole || Number.isInteger(value);
}

const commonLevels = [0.01, 0.05, 0.1];

/** Some values around that of the design, in two digits. */
export function usualValues(name: string, value: number, limits: Limits | undefined): number[] {
  if (name === "alpha" && commonLevels.includes(value)) return commonLevels;
  const around = [0.6, 1, 1.4].map((factor) => {
    const rounded = factor === 1 ? value : Number((factor * value).toPrecision(2));
    return limits?.whole ? Math.round(rounded) : rounded;
  });
  return [...new Set(around)].filter((one) => allows(limits, one)).sort((a, b) => a - b);
}

/** A number, or one that a list has for each group. */
function numberOf(value: Value, parameter: Parameter | undefined): number | null {
  if (typeof value === "number") return value;
  const isSame = isNumbers(value) && value.length > 0 && value.every((entry) => entry === value[0]);
  return isSame && parameter?.spreads ? value[0]! : null;
}

/** What is asked, as against what it is asked of. */
const questionWords = ["power", "half-width", "solve", "interval"];

/** Whether a flag may be set or not: a route that needs it has another beside it that is the same without. */
function isFree(test: Test, flag: string): boolean {
  const routes = test.routes ?? [];
  const isBeside = (needs: readonly string[], others: readonly string[]) =>
    others.length === needs.length - 1 && others.every((name) => name !== flag && needs.includes(name));
  return routes.every(({ needs }) => !needs.includes(flag) || routes.some((other) => isBeside(needs, other.needs)));
}

/** What the curves of a chart can differ in: inputs of the design, and none of what is found for it. */
export function comparables(test: Test, chart: Chart, design: Record<string, Value>): Comparable[] {
  const inputs = chart.curves[0]!.inputs;
  const axis = chart.axes[0]!.name;
  const found: Comparable[] = [];
  for (const [name, value] of Object.entries(inputs)) {
    const isMoving =
      name === axis ||
      (name === "n" && /^(n\d*|total|ratio)$/.test(axis)) ||
      axis.replace(/\d+$/, "") === name.replace(/s$/, "");
    if (isMoving || !(name in design) || questionWords.includes(name)) continue;
    const parameter = parameterOf(test, name);
    if (parameter?.role) continue;
    const label = labelOf(test, name);
    const number = numberOf(value, parameter);
    if (number !== null) {
      const usual = usualValues(name, number, parameter?.limits);
      if (usual.length > 1) found.push({ name, label, isNumber: true, usual });
    } else if (typeof value === "boolean") {
      if (isFree(test, name)) found.push({ name, label, isNumber: false, usual: [false, true] });
    } else if (typeof value === "string" && (parameter?.choices?.length ?? 0) > 1) {
      found.push({ name, label, isNumber: false, usual: parameter!.choices!.slice(0, 6) });
    }
  }
  return found;
}

/** Numbers separated by blanks or semicolons, with a decimal point or comma. */
export function readValues(text: string): number[] {
  const words = text.split(/[\s;]+|,\s+/).filter((word) => word !== "");
  return words
    .map((word) => Number(word.replace(",", ".").replace("\u2212", "-")))
    .filter((value) => Number.isFinite(value))
    .slice(0, 6);
}
