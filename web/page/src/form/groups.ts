// Adding and removing groups: all lists of a design that have an entry for each group change together.

import type { Test } from "../contract";
import { type Design, entriesOf, fieldsOf, groupsOf, mostEntries } from "./design";

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
