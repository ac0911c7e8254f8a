/** Designs as the JSON that the program writes with `--save` and answers with `kelpower run`. */

import type { Design, Inputs, Value } from "../pictures/model";

/** A design and, where it has one, its name. */
export type SavedDesign = Design;

export interface LoadedDesigns {
  designs: SavedDesign[];
  /** Why the file, or part of it, could not be read. */
  problem?: string;
}

export const problems = {
  notJson: "The file is no JSON.",
  noDesigns: "The file has no designs: it should hold an object with the name of a test, or an array of such objects.",
  noTest: (at: number) => `Entry ${at} names no test.`,
  notAValue: (at: number, name: string) =>
    `Entry ${at} has something other than numbers, words, true or false for “${name}”.`,
};

function isGiven(value: Inputs[string]): boolean {
  return value !== null && value !== undefined && value !== "";
}

/** One design is an object, several are an array of objects; what is not given is left out. */
export function designsToJson(designs: SavedDesign[]): string {
  const rows = designs.map(({ test, inputs }) => ({
    test,
    ...Object.fromEntries(Object.entries(inputs).filter(([, value]) => isGiven(value))),
  }));
  if (rows.length === 1) return JSON.stringify(rows[0]) + "\n";
  return "[\n" + rows.map((row) => JSON.stringify(row)).join(",\n") + "\n]\n";
}

const isSingle = (value: unknown) => ["number", "string", "boolean"].includes(typeof value);

function isValue(value: unknown): value is Value {
  return isSingle(value) || (Array.isArray(value) && value.every((entry) => isSingle(entry)));
}

/** What programs write as one word of the command line is spelt so here. */
const dashed = (name: string) => name.replaceAll("_", "-");

function designOf(row: object, at: number): SavedDesign | string {
  const { test, ...rest } = row as Record<string, unknown>;
  if (typeof test !== "string" || test === "") return problems.noTest(at);
  const inputs: Inputs = {};
  for (const [name, value] of Object.entries(rest)) {
    if (value === null || value === "") continue;
    if (!isValue(value)) return problems.notAValue(at, name);
    inputs[dashed(name)] = value;
  }
  return { test: dashed(test), inputs };
}

/** Reads the file of one design or several. Entries that cannot be read are left out and told. */
export function loadDesigns(text: string): LoadedDesigns {
  let read: unknown;
  try {
    read = JSON.parse(text.replace(/^\uFEFF/, ""));
  } catch {
    return { designs: [], problem: problems.notJson };
  }
  const rows = Array.isArray(read) ? read : [read];
  const isOfObjects = rows.every((row) => typeof row === "object" && row !== null && !Array.isArray(row));
  if (!rows.length || !isOfObjects) return { designs: [], problem: problems.noDesigns };
  const designs: SavedDesign[] = [];
  const told: string[] = [];
  rows.forEach((row, i) => {
    const design = designOf(row as object, i + 1);
    if (typeof design === "string") told.push(design);
    else designs.push(design);
  });
  return told.length ? { designs, problem: told.join(" ") } : { designs };
}
