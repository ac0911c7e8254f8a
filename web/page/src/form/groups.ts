// Adding and removing groups, and rows and columns of tables.

import type { Parameter, Test } from "../contract";
import type { Design } from "./design";
import { fieldsOf } from "./parts";
import { entriesOf, gridOf, groupsOf, mostEntries } from "./shape";

/** All lists of a design that have an entry for each group change together. */
function withGroups(test: Test, design: Design, count: number): Design {
  const texts: Record<string, readonly string[]> = { ...design.texts };
  for (const { parameter } of fieldsOf(test, design)) {
    if (parameter.kind !== "per-group") continue;
    const entries = entriesOf(test, design, parameter);
    if (parameter.spreads && entries.length === 1) continue;
    texts[parameter.name] = Array.from({ length: count }, (_, i) => entries[i] ?? "");
  }
  return { ...design, texts };
}

export function addGroup(test: Test, design: Design): Design {
  return withGroups(test, design, Math.min(groupsOf(test, design) + 1, mostEntries));
}

export function removeGroup(test: Test, design: Design): Design {
  return withGroups(test, design, Math.max(groupsOf(test, design) - 1, 2));
}

/** A table with other numbers of rows and columns, and what was typed in its place. */
export function resized(test: Test, design: Design, table: Parameter, rows: number, columns: number): Design {
  const before = gridOf(test, design, table);
  const entries = entriesOf(test, design, table);
  const width = before?.columns.count ?? columns;
  const cells = Array.from({ length: rows * columns }, (_, i) => {
    const column = i % columns;
    return column < width ? (entries[Math.floor(i / columns) * width + column] ?? "") : "";
  });
  const texts = { ...design.texts, [table.name]: cells };
  if (table.rows) texts[table.rows] = [String(rows)];
  if (table.columns) texts[table.columns] = [String(columns)];
  return { ...design, texts };
}

/** The rows of a text that was copied from a table. */
export function pastedRows(text: string, split: (line: string) => string[]): string[][] {
  const lines = text.split(/\r?\n/).filter((line) => line.trim() !== "");
  return lines.map(split);
}
