/** What changes of a design's inputs when it is moved along an axis of a chart. */

import { asksForSizes, isOfPower } from "./axes";
import type { Axis } from "./axes";
import { isNumbers } from "./model";
import type { Chart, Inputs, Question, Value } from "./model";
import { shortestBetween, shortestFrom } from "./numbers";
import { leastToCome, nearestIndex, valuesOf } from "./series";
import type { Values } from "./series";

export type Changes = Record<string, Value>;

type Resolved = Record<string, Value>;

/** A number that stands for all groups stays one. */
function listAsGiven(list: number[], given: unknown): Value {
  const isOne = list.every((entry) => entry === list[0]);
  const wasOne =
    given === undefined || given === null || typeof given === "number" || (isNumbers(given) && given.length === 1);
  return isOne && wasOne ? list[0]! : list;
}

function withEntry(list: number[], index: number, value: number): number[] {
  return list.map((entry, i) => (i === index ? value : entry));
}

function sharedBy(sizes: number[], reference: number, size: number): number[] {
  return sizes.map((planned) => Math.max(1, Math.round(planned * (size / sizes[reference]!))));
}

const sum = (list: number[]) => list.reduce((total, entry) => total + entry, 0);

/** Whole sizes in the shares of the design that come to a total. */
function sharedByTotal(sizes: number[], total: number): number[] {
  const smallest = sizes.indexOf(Math.min(...sizes));
  const near = Math.max(1, Math.round(total * (sizes[smallest]! / sum(sizes))));
  for (const size of [near, near - 1, near + 1]) {
    const shared = sharedBy(sizes, smallest, Math.max(1, size));
    if (sum(shared) === total) return shared;
  }
  return sharedBy(sizes, smallest, near);
}

function movedSizes(axis: string, value: number, sizes: number[]): number[] | null {
  if (axis === "n") return sharedBy(sizes, 0, value);
  if (axis === "total") return sharedByTotal(sizes, value);
  const group = /^n(\d+)$/.exec(axis);
  return group ? withEntry(sizes, Number(group[1]) - 1, value) : null;
}

/** "mean2" is the second entry of "means", "sd2" of "sd" or "sds". */
function movedEntry(axis: string, value: number, inputs: Resolved): Changes | null {
  const parts = /^(.+?)(\d+)$/.exec(axis);
  if (!parts) return null;
  for (const name of [parts[1]!, parts[1]! + "s"]) {
    const list = inputs[name]!;
    const index = Number(parts[2]) - 1;
    if (isNumbers(list) && index < list.length) return { [name]: withEntry(list, index, value) };
  }
  return null;
}

const odds = (proportion: number) => proportion / (1 - proportion);

/** The second of two proportions, whichever way it is given. */
function secondProportion(inputs: Resolved): number | null {
  const first = inputs.proportion1;
  if (typeof first !== "number") return null;
  if (typeof inputs.proportion2 === "number") return inputs.proportion2;
  if (typeof inputs["risk-difference"] === "number") return first + inputs["risk-difference"];
  if (typeof inputs["risk-ratio"] === "number") return first * inputs["risk-ratio"];
  if (typeof inputs["odds-ratio"] === "number") return fromOdds(odds(first) * inputs["odds-ratio"]);
  return null;
}

const fromOdds = (value: number) => value / (1 + value);

/** Two proportions in the form in which they were given. */
function proportionsAsGiven(first: number, second: number, inputs: Resolved): Changes {
  if (isNumbers(inputs.proportions)) return { proportions: [first, second] };
  const changes: Changes = { proportion1: first };
  if ("proportion2" in inputs) changes.proportion2 = second;
  if ("risk-difference" in inputs) changes["risk-difference"] = second - first;
  if ("risk-ratio" in inputs) changes["risk-ratio"] = second / first;
  if ("odds-ratio" in inputs) changes["odds-ratio"] = odds(second) / odds(first);
  return changes;
}

function movedProportions(axis: string, value: number, inputs: Resolved): Changes | null {
  const list = inputs.proportions;
  // Those of more than two categories are entries of a list like any other.
  if (isNumbers(list) && list.length !== 2) return null;
  const first = isNumbers(list) ? list[0] : inputs.proportion1;
  const second = isNumbers(list) ? list[1] : secondProportion(inputs);
  if (typeof first !== "number" || typeof second !== "number" || "correlation" in inputs) return null;
  switch (axis) {
    case "proportion1":
      return proportionsAsGiven(value, second, inputs);
    case "proportion2":
      return proportionsAsGiven(first, value, inputs);
    case "risk-difference":
      return proportionsAsGiven(first, first + value, inputs);
    case "risk-ratio":
      return proportionsAsGiven(first, first * value, inputs);
    case "odds-ratio":
      return proportionsAsGiven(first, fromOdds(odds(first) * value), inputs);
  }
  return null;
}

/** Figures of the two kinds of discordant pairs. The first kind stays, unless it leaves the second no room. */
function movedDiscordant(axis: string, value: number, inputs: Resolved): Changes | null {
  const { p12, p21 } = inputs;
  if (typeof p12 !== "number" || typeof p21 !== "number") return null;
  if (axis === "difference") return { p21: p12 - value };
  if (axis === "ratio") return p12 <= 0.5 ? { p21: p12 / value } : { p12: value * p21 };
  if (axis === "odds-ratio") return { p21: p12 / ((1 - p12) * value + p12) };
  return null;
}

/** Axes that are figures of two inputs. */
function movedFigure(axis: string, value: number, inputs: Resolved): Changes | null {
  const discordant = movedDiscordant(axis, value, inputs);
  if (discordant) return discordant;
  if (axis === "difference") {
    if (isNumbers(inputs.means)) return { means: withEntry(inputs.means, 0, inputs.means[1]! + value) };
    for (const name of ["r", "proportion"]) {
      if (typeof inputs[name] === "number" && typeof inputs.null === "number") return { [name]: inputs.null + value };
    }
  }
  if (axis === "r" && typeof inputs["r-squared"] === "number") return { "r-squared": value * value };
  return null;
}

/** Between these a target asks for the sizes at a place: above the first, and the second at most. */
interface Targets {
  above: number;
  atMost: number;
}

/**
 * The targets of each place of a curve. They are those that no smaller size reaches; with "stable" those that all larger
 * ones reach as well. A place that an exact test's power falls to has none.
 */
function targetsOf(values: Values, isStable: boolean): (Targets | null)[] {
  const lasting = isStable ? leastToCome(values) : values;
  let highest = -Infinity;
  return values.map((value, i) => {
    const above = isStable ? (values[i - 1] ?? -Infinity) : highest;
    if (value !== null && value > highest) highest = value;
    const atMost = lasting[i] ?? null;
    return atMost !== null && atMost > above ? { above, atMost } : null;
  });
}

/** A half-width is smaller the better: turned around it is as a power. */
function turned(values: Values): Values {
  return values.map((value) => (value === null ? null : -value));
}

function targetsAlong(chart: Chart, given: Inputs, question: Question): (Targets | null)[] {
  const values = valuesOf(chart, chart.curves[0]!);
  return targetsOf(isOfPower(question) ? values : turned(values), given["stable"] === true);
}

/** The sizes that some target asks for, where sizes are asked for; null where a size may be any. */
export function sizesThatAreFound(chart: Chart, axis: Axis, given: Inputs, question: Question): number[] | null {
  if (!axis.isOfSizes || !asksForSizes(question) || chart.curves.length > 1) return null;
  const targets = targetsAlong(chart, given, question);
  const found = chart.x.filter((_, i) => targets[i]);
  return found.length > 1 && found.length < chart.x.length ? found : null;
}

/** The target that asks for the sizes at a place of the curve, in as few digits as will do. */
function targetAt(chart: Chart, value: number, given: Inputs, question: Question): Changes | null {
  const target = targetsAlong(chart, given, question)[nearestIndex(chart.x, value)];
  if (!target) return null;
  const { above, atMost } = target;
  if (isOfPower(question)) {
    if (atMost <= 0 || atMost >= 1) return null;
    return { power: shortestBetween(Math.max(above, atMost - 0.02, 0), atMost) };
  }
  return { "half-width": shortestFrom(-atMost, Math.min(-above, -1.02 * atMost)) };
}

/** Null where the design cannot be moved along this axis. `given` are the inputs as the person gave them. */
export function movedAlong(axis: Axis, value: number, chart: Chart, given: Inputs, question: Question): Changes | null {
  const inputs = chart.curves[0]!.inputs;
  if (axis.isOfSizes && asksForSizes(question)) return targetAt(chart, value, given, question);
  if (axis.isOfSizes) {
    if (!isNumbers(inputs.n)) return { n: value };
    const sizes = movedSizes(axis.name, value, inputs.n);
    return sizes && { n: listAsGiven(sizes, given.n) };
  }
  const proportions = movedProportions(axis.name, value, inputs);
  if (proportions) return proportions;
  const current = inputs[axis.name];
  if (typeof current === "number") return { [axis.name]: value };
  if (isNumbers(current)) {
    return {
      [axis.name]: listAsGiven(
        current.map((entry) => entry * (value / current[0]!)),
        given[axis.name]!,
      ),
    };
  }
  return movedEntry(axis.name, value, inputs) ?? movedFigure(axis.name, value, inputs);
}
