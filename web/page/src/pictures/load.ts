/** Asks the core for what a picture of a kind needs. */

import { asksForSizes, axesFor, canBePaired, isOfPower, offeredAxes } from "./axes";
import type { Axis } from "./axes";
import { sizesOf } from "./caption";
import { isFailure, isNumbers } from "./model";
import type { Answer, Chart, Core, Densities, Design, Inputs, Question, Table, Test, Value } from "./model";
import { attainsLevel, designSizes, sizesAround, teethOf } from "./saw";
import type { Tooth } from "./saw";
import { valuesOf } from "./series";
import { texts } from "./texts";

export type Kind = "curve" | "densities" | "contour" | "saw" | "interval";

/** What the person has chosen to see. */
export interface Choice {
  kind: Kind | null;
  axis: string;
  up: string;
  /** Across an input other than sizes, the sizes that are needed take the place of the power. */
  showsSizes: boolean;
  compare: { name: string; values: Value[] } | null;
}

/** The ends of the axes of a picture, which stay while the design moves in it. */
export interface Range {
  axes: string;
  from: number[];
  to: number[];
}

/** What a design can be shown as. */
export interface Offer {
  axes: Axis[];
  kinds: Kind[];
  answer: Answer | null;
}

export class NotDrawn extends Error {}

/** A list of figures that tell how large an effect is, foremost first. */
const effects = /^effect-|difference|^r$|^r-squared$|^proportion|^mean|odds-ratio|risk-ratio|^p12|^eta/;

/** The axis of an effect comes before others, such as that of the level. */
export function effectAxis(axes: Axis[], besides: Axis): Axis | undefined {
  const fits = axes.filter((axis) => !axis.isOfSizes && canBePaired(axis, besides));
  return fits.find((axis) => effects.test(axis.name)) ?? fits[0];
}

function hasAlternatives(inputs: Inputs, test: Test): boolean {
  return Object.entries(inputs).some(([name, value]) => {
    if (!Array.isArray(value)) return false;
    const kind = test.parameters.find((parameter) => parameter.name === name)?.kind;
    const isList = kind === "list" || kind === "per-group";
    return isList ? value.some((entry) => Array.isArray(entry)) : true;
  });
}

export async function offerFor(
  core: Core,
  design: Design,
  question: Question,
  test: Test,
  signal?: AbortSignal,
): Promise<Offer> {
  const axes = axesFor(await offeredAxes(core, design, test, signal), question);
  if (hasAlternatives(design.inputs, test)) return { axes, kinds: ["curve"], answer: null };
  const answer = (await core.solve({ ...design, densities: true, names: "dash" }, { signal })) as Answer;
  if (isFailure(answer)) return { axes, kinds: [], answer: null };
  const kinds: Kind[] = [];
  if (axes.length) kinds.push("curve");
  if (!isOfPower(question)) kinds.unshift("interval");
  if (answer.densities) kinds.push("densities");
  const first = axes[0];
  if (isOfPower(question) && first && effectAxis(axes, first)) kinds.push("contour");
  // An exact test attains less than its level.
  if (attainsLevel(answer.results)) kinds.push("saw");
  return { axes, kinds, answer };
}

/** What was loaded for a picture. */
export interface Loaded {
  kind: Kind;
  axis: Axis;
  up: Axis | null;
  /** The axis of the sizes, where there is one. */
  sizes: Axis | null;
  chart: Chart;
  densities: Densities | null;
  teeth: Tooth[] | null;
  answer: Answer | null;
}

async function drawn(core: Core, request: object, signal?: AbortSignal): Promise<Chart> {
  const chart = await core.draw({ ...request, names: "dash" }, { signal });
  if (isFailure(chart)) throw new NotDrawn(chart.error.message);
  return chart as Chart;
}

function chosen(axes: Axis[], name: string): Axis {
  const axis = axes.find((one) => one.name === name) ?? axes[0];
  if (!axis) throw new NotDrawn("");
  return axis;
}

/** Lists have one list for each alternative. */
function withAlternatives(inputs: Inputs, compare: Choice["compare"], resolved: Inputs): Inputs {
  // Another design may lack the input.
  if (!compare || !(compare.name in resolved)) return inputs;
  const isList = isNumbers(resolved[compare.name]) || isNumbers(inputs[compare.name]);
  const values = isList ? compare.values.map((value) => (isNumbers(value) ? value : [value])) : compare.values;
  return { ...inputs, [compare.name]: values };
}

function ends(range: Range | null, axes: string): object {
  return range?.axes === axes ? { from: range.from, to: range.to } : {};
}

export function rangeOf(chart: Chart): Range {
  const points = chart.y ? [chart.x, chart.y] : [chart.x];
  const ends = (end: 0 | -1) => points.map((list) => list.at(end)!);
  return { axes: chart.axes.map(({ name }) => name).join("-"), from: ends(0), to: ends(-1) };
}

/** The axis with the title that it has for this design. */
function titled(axis: Axis, chart: Chart): Axis {
  const title = chart.axes.find(({ name }) => name === axis.name)?.title ?? axis.title;
  return { ...axis, title, symbol: axis.name === "n" && /first group/.test(title) ? texts.ofFirstGroup : axis.symbol };
}

async function loadSaw(
  core: Core,
  design: Design,
  chart: Chart,
  smallest: number,
  signal?: AbortSignal,
): Promise<Tooth[]> {
  const inputs = chart.curves[0]!.inputs;
  const planned = sizesOf(inputs);
  if (!planned) throw new NotDrawn("");
  const sizes = designSizes(sizesAround(planned[0]!, smallest), inputs.n!);
  const fixed = Object.fromEntries(Object.entries(inputs).filter(([name]) => name !== "n"));
  const table = await core.solve({ test: design.test, inputs: { ...fixed, n: sizes }, names: "dash" }, { signal });
  if (isFailure(table)) throw new NotDrawn(table.error.message);
  const teeth = teethOf(table as Table);
  if (teeth.length < 2) throw new NotDrawn("");
  return teeth;
}

export async function load(
  core: Core,
  design: Design,
  question: Question,
  offer: Offer,
  choice: Choice,
  range: Range | null,
  signal?: AbortSignal,
): Promise<Loaded> {
  const kind = offer.kinds.find((one) => one === choice.kind) ?? offer.kinds[0] ?? "curve";
  const sizesFirst = kind === "saw" || kind === "interval";
  const axis = sizesFirst
    ? (offer.axes.find((one) => one.isOfSizes) ?? chosen(offer.axes, "n"))
    : chosen(offer.axes, choice.axis);
  const sizes = offer.axes.find((one) => one.isOfSizes) ?? null;
  const plain = { kind, sizes, densities: null, teeth: null, answer: offer.answer };
  if (kind === "contour") {
    const up =
      offer.axes.find((one) => one.name === choice.up && canBePaired(axis, one)) ?? effectAxis(offer.axes, axis);
    if (!up) throw new NotDrawn("");
    const name = `${axis.name}-${up.name}`;
    const chart = await drawn(core, { ...design, chart: name, ...ends(range, name) }, signal);
    return { ...plain, axis: titled(axis, chart), up: titled(up, chart), chart };
  }
  const showsSizes = kind === "curve" && choice.showsSizes && asksForSizes(question) && !axis.isOfSizes;
  const resolved = offer.answer?.inputs ?? {};
  const inputs = kind === "curve" ? withAlternatives(design.inputs, choice.compare, resolved) : design.inputs;
  const how = showsSizes ? { y: "n" } : {};
  const chart = await drawn(core, { ...design, inputs, chart: axis.name, ...how, ...ends(range, axis.name) }, signal);
  // Some tests have an answer at equal sizes only.
  const places = valuesOf(chart, chart.curves[0]!).filter((value) => value !== null);
  if (places.length < 2) throw new NotDrawn(texts.singlePlace(axis.title));
  const lined = { ...plain, axis: titled(axis, chart), up: null, chart };
  if (kind === "saw") return { ...lined, teeth: await loadSaw(core, design, chart, axis.limits.minimum ?? 1, signal) };
  return { ...lined, densities: offer.answer?.densities ?? null };
}
