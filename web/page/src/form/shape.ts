// How many numbers the lists of a design have: one for each group, and a table's rows and columns.

import type { Parameter, Test } from "../contract";
import { readNumber, splitList } from "../numbers";
import { texts } from "../texts";
import { chosenFlag, currentRoute, type Design, effectOf } from "./design";
import { parametersOf } from "./forms";
import { parameterOf } from "./wishes";
import { capital } from "./words";

export const mostEntries = 100;
const usualGroups = 3;
const usualSide = 2;
export const usualLevels: readonly number[] = [2, 2];
/** The core takes no more cells of crossed factors. */
const mostCells = 1000;

/** Whether an input says how many groups there are; a list may tell it in its place. */
export function isCount(parameter: Parameter): boolean {
  return parameter.role === "shape" && parameter.kind === "number";
}

/** The input that counts the groups of a test where no list does. */
export function countOfTest(test: Test): Parameter | undefined {
  return test.parameters.find((one) => isCount(one) && test.routes.some(({ accepts }) => accepts.includes(one.name)));
}

/** The same of a design, whose route may take none. */
export function countOf(test: Test, design: Design): Parameter | undefined {
  return parametersOf(test, currentRoute(test, design).accepts).find(isCount);
}

/** Whether a list tells by its entries how many groups there are. */
function tellsGroups(parameter: Parameter): boolean {
  return parameter.kind === "per-group" && !parameter.spreads;
}

/** The list that gives the levels of crossed factors, whose cells are the groups. */
function factorsOf(test: Test, design: Design): Parameter | undefined {
  return effectOf(test, design).find(({ role, kind }) => role === "shape" && kind === "list");
}

/** The input by whose entries the groups of a design are counted, if it has one. */
export function groupsTeller(test: Test, design: Design): Parameter | undefined {
  const effect = effectOf(test, design);
  return factorsOf(test, design) ?? effect.find(tellsGroups) ?? effect.find(({ columns }) => columns !== undefined);
}

function wholeOf(text: string | undefined, least: number): number | undefined {
  const reading = readNumber(text ?? "", true);
  if (!("value" in reading) || !Number.isInteger(reading.value)) return undefined;
  return reading.value >= least && reading.value <= mostEntries ? reading.value : undefined;
}

/** The levels of each factor as they are typed; two factors of two levels until they can be read. */
function levelsOf(design: Design, { name }: Parameter): number[] {
  const typed = (design.texts[name] ?? []).join("; ");
  const levels = splitList(typed, true).map((text) => wholeOf(text, 2));
  const cells = levels.reduce<number>((product, level) => product * (level ?? Infinity), 1);
  return levels.length > 0 && cells <= mostCells ? levels.map((level) => level ?? usualSide) : [...usualLevels];
}

/** What the rows or the columns of a grid are. */
export interface Side {
  count: number;
  /** What stands over all of them. */
  title: string;
  /** The place of each under the title, and its full name. */
  places: readonly string[];
  names: readonly string[];
  /** What is added and removed, where it can be. */
  each?: string;
  least: number;
}

export interface Grid {
  rows: Side;
  columns: Side;
}

function side(count: number, each: string, least: number): Side {
  const title = capital(each);
  const places = Array.from({ length: count }, (_, i) => String(i + 1));
  return { count, title, places, names: places.map((place) => `${title} ${place}`), each, least };
}

/** The cells that have these levels of some factors. */
function levelSide(factors: readonly number[], levels: readonly (readonly number[])[]): Side {
  const count = levels.length;
  const names = levels.map((each) => texts.form.level(factors, each));
  return {
    count,
    title: texts.form.factors(factors),
    places: levels.map((each) => each.join(", ")),
    names,
    least: count,
  };
}

/** The input that says how large a table is in one direction. */
function sizeOfTable(test: Test, parameter: Parameter): Parameter | undefined {
  return parameterOf(test, parameter.rows ?? parameter.columns ?? "");
}

/** "measurement" of an input that is called measurements. */
function singular({ label }: Parameter): string {
  return label.replace(/s$/, "");
}

function tableOf(test: Test, design: Design, parameter: Parameter): Grid | undefined {
  const size = sizeOfTable(test, parameter);
  if (!size) return undefined;
  const known = wholeOf(design.texts[size.name]?.[0], size.limits.minimum ?? 1) ?? usualSide;
  const entries = design.texts[parameter.name]?.length ?? 0;
  const counted = side(known, singular(size), size.limits.minimum ?? 1);
  const others = (least: number) => Math.max(Math.ceil(entries / known), least);
  if (parameter.rows) return { rows: counted, columns: side(others(usualSide), texts.form.column, usualSide) };
  const least = countOf(test, design)?.limits.minimum ?? 1;
  return {
    rows: side(others(least), test.groups === "k" ? texts.form.eachGroup : texts.form.row, least),
    columns: counted,
  };
}

function cellsOf(levels: readonly number[]): Grid | undefined {
  if (levels.length < 2) return undefined;
  const last = levels.at(-1) ?? 1;
  let rows: number[][] = [[]];
  for (const level of levels.slice(0, -1)) {
    rows = rows.flatMap((row) => Array.from({ length: level }, (_, i) => [...row, i + 1]));
  }
  const columns = Array.from({ length: last }, (_, i) => [i + 1]);
  const factors = levels.slice(0, -1).map((_, i) => i + 1);
  return { rows: levelSide(factors, rows), columns: levelSide([levels.length], columns) };
}

/** The rows and columns of a list that is written row by row. */
export function gridOf(test: Test, design: Design, parameter: Parameter): Grid | undefined {
  if (parameter.kind === "list") return tableOf(test, design, parameter);
  const factors = parameter.kind === "per-group" ? factorsOf(test, design) : undefined;
  return factors && cellsOf(levelsOf(design, factors));
}

/** The table that shows by its own size what an input says, so that the input needs no field. */
export function tableThatTells(test: Test, design: Design, count: Parameter): Parameter | undefined {
  const text = design.texts[count.name]?.[0] ?? "";
  if (text !== "" && wholeOf(text, count.limits.minimum ?? 1) === undefined) return undefined;
  return effectOf(test, design).find(({ rows, columns }) => (rows ?? columns) === count.name);
}

/** How many groups a design has. */
export function groupsOf(test: Test, design: Design): number {
  if (typeof test.groups === "number") return test.groups;
  const teller = groupsTeller(test, design);
  if (teller?.kind === "per-group") return Math.max(design.texts[teller.name]?.length ?? usualGroups, 2);
  if (teller?.columns) return tableOf(test, design, teller)?.rows.count ?? 1;
  if (teller) return levelsOf(design, teller).reduce((product, level) => product * level, 1);
  const count = countOf(test, design);
  const least = count?.limits.minimum ?? 2;
  const reading = readNumber(design.texts[count?.name ?? ""]?.[0] ?? "", true);
  const typed = "value" in reading && reading.value >= least ? Math.floor(reading.value) : usualCount(count);
  return Math.min(typed, mostEntries);
}

/** The number of groups that a design begins with. */
export function usualCount(count: Parameter | undefined): number {
  return count?.limits.minimum === 1 ? 1 : usualGroups;
}

/** The texts of an input's entries, as many as it has now. */
export function entriesOf(test: Test, design: Design, parameter: Parameter): readonly string[] {
  const given = design.texts[parameter.name] ?? [];
  const table = tableThatTells(test, design, parameter);
  if (table) {
    const grid = gridOf(test, design, table);
    return [String((table.rows ? grid?.rows : grid?.columns)?.count ?? usualSide)];
  }
  if (parameter.kind === "flag") return parameter.name === chosenFlag(test, design) ? ["yes"] : [given[0] ?? ""];
  if (parameter.spreads && given.length < 2) return [given[0] ?? ""];
  const grid = gridOf(test, design, parameter);
  if (!grid && parameter.kind === "list" && !parameter.length) return [given.join("; ")];
  const listed = parameter.kind === "list" ? (parameter.length ?? 1) : groupsOf(test, design);
  const single = parameter.kind === "list" || parameter.kind === "per-group" ? listed : 1;
  const length = grid ? grid.rows.count * grid.columns.count : single;
  return Array.from({ length }, (_, i) => given[i] ?? "");
}
