/** Which inputs a design can be drawn over, and how a value moves along one. */

import { isFailure } from "./model";
import type { Chart, Core, DescribedAxis, Design, Limits, Question, Test } from "./model";
import { nearestIndex } from "./series";
import { roundStep, toStep } from "./numbers";

export interface Axis {
  name: string;
  title: string;
  symbol: string;
  isOfSizes: boolean;
  limits: Limits;
}

/** Asks the core, whose refusal of an unknown chart names all that it can draw of this design. */
export async function offeredAxes(core: Core, design: Design, test: Test, signal?: AbortSignal): Promise<Axis[]> {
  const refusal = await core.draw({ ...design, chart: "?", names: "dash" }, { signal });
  return isFailure(refusal) && refusal.error.code === "chart" ? axesNamedIn(refusal.error.message, test) : [];
}

export function axesNamedIn(message: string, test: Test): Axis[] {
  const list = /must be (.+), or two of them/.exec(message) ?? /must be (.+)\.$/.exec(message);
  if (!list) return [];
  return list[1]!.split(/, | or /).map((name) => axisOf(name, test));
}

/** "mean3" is described as "mean1" is, with its own number. */
export function axisOf(name: string, test: Test): Axis {
  const described = test.axes.find((axis) => axis.name === name);
  const stem = name.replace(/\d+$/, "");
  const number = name.slice(stem.length);
  const like = described ?? test.axes.find((axis) => axis.name === stem + "1");
  const isOfSizes = /^(n\d*|total)$/.test(name);
  if (!like) return { name, title: name, symbol: name, isOfSizes, limits: {} };
  const spaced = `${stem} ${number}`;
  if (described)
    return { ...pick(described), isOfSizes, symbol: described.symbol === name && number ? spaced : described.symbol };
  return { name, title: like.title.replace(/\b1\b/, number), symbol: spaced, isOfSizes, limits: like.limits };
}

function pick(axis: DescribedAxis): Omit<Axis, "isOfSizes"> {
  return { name: axis.name, title: axis.title, symbol: axis.symbol, limits: axis.limits };
}

export function asksForSizes(question: Question): boolean {
  return question === "sample-size" || question === "sample-size-for-half-width";
}

export function isOfPower(question: Question): boolean {
  return question === "power" || question === "sample-size";
}

/** Where sizes are asked for, they are found together: those of one group alone are no question. */
export function axesFor(axes: Axis[], question: Question): Axis[] {
  return asksForSizes(question) ? axes.filter((axis) => !axis.isOfSizes || !/^n\d+$/.test(axis.name)) : axes;
}

/** Pairs of axes that a surface can be drawn over: evenly spaced, and not two that are tied to each other. */
export function canBePaired(first: Axis, second: Axis): boolean {
  if (first.name === second.name || first.name === "total" || second.name === "total") return false;
  return !(first.isOfSizes && second.isOfSizes);
}

/** The values that a design can be moved to. */
export interface Track {
  from: number;
  to: number;
  step: number;
  /** The only ones, where they are not evenly spaced. */
  points?: number[];
}

const stepsAcross = 200;

export function trackOf(chart: Chart, axis: Axis, points: number[] = chart.x): Track {
  const from = points[0]!;
  const to = points[points.length - 1]!;
  if (axis.name === "total") return { from, to, step: 1, points };
  if (axis.limits.whole) return { from, to, step: 1 };
  return { from, to, step: roundStep((to - from) / stepsAcross) };
}

/** The nearest value of the track. */
export function onTrack(track: Track, value: number): number {
  const inside = Math.min(track.to, Math.max(track.from, value));
  if (track.points) return track.points[nearestIndex(track.points, inside)]!;
  const rounded = toStep(inside, track.step);
  if (rounded < track.from) return toStep(Math.ceil(track.from / track.step - 1e-9) * track.step, track.step);
  if (rounded > track.to) return toStep(Math.floor(track.to / track.step + 1e-9) * track.step, track.step);
  return rounded;
}

/** So many steps further along the track. */
export function stepped(track: Track, value: number, steps: number): number {
  if (!track.points) return onTrack(track, value + steps * track.step);
  const at = nearestIndex(track.points, value) + steps;
  return track.points[Math.min(track.points.length - 1, Math.max(0, at))]!;
}
