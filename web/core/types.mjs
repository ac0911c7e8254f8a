// Writes src/replies.ts, the types of the planner's replies, from their JSON schemas.
// Usage: node types.mjs [--check]    (to check whether the file is current)
import { readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

import { compile } from "json-schema-to-typescript";

const here = dirname(fileURLToPath(import.meta.url));
const file = join(here, "src/replies.ts");
const replies = {
  answer: "Answer",
  table: "Table",
  chart: "Chart",
  conversion: "Conversion",
  description: "Description",
  error: "Failure",
};

function schemaOf(name) {
  return JSON.parse(readFileSync(join(here, "../../capi/schema", `${name}.json`), "utf8"));
}

/** Adds a named part, which may stand in several schemas if it is the same in each. */
function add(parts, name, part) {
  if (name in parts && JSON.stringify(parts[name]) !== JSON.stringify(part)) {
    throw new Error(`The schemas have different parts named ${name}.`);
  }
  parts[name] = part;
}

/** Names that are no global type's. */
const titles = { error: "Problem" };

/** A type whose members have names of their own cannot say of what kind all others are. */
function loosened(schema) {
  if (Array.isArray(schema)) return schema.map(loosened);
  if (typeof schema !== "object" || schema === null) return schema;
  const result = Object.fromEntries(Object.entries(schema).map(([key, each]) => [key, loosened(each)]));
  if (schema.properties && typeof schema.additionalProperties === "object") result.additionalProperties = {};
  return result;
}

/** All schemas as the parts of one. */
function joined() {
  const $defs = {};
  for (const [name, type] of Object.entries(replies)) {
    const { $defs: parts = {}, $schema, $id, title, ...schema } = schemaOf(name);
    for (const [part, body] of Object.entries(parts))
      add($defs, part, { ...body, ...(titles[part] && { title: titles[part] }) });
    $defs[type] = { ...schema, title: type, description: `${title}.` };
  }
  const properties = Object.fromEntries(Object.values(replies).map((type) => [type, { $ref: `#/$defs/${type}` }]));
  return { title: "Replies", type: "object", properties, $defs };
}

const text = await compile(loosened(joined()), "Replies", {
  additionalProperties: false,
  bannerComment: "// Written by types.mjs from the schemas in capi/schema.",
  style: { printWidth: 120 },
});

if (process.argv[2] !== "--check") {
  writeFileSync(file, text);
} else if (readFileSync(file, "utf8") !== text) {
  console.error("web/core/src/replies.ts is not what capi/schema says; node web/core/types.mjs writes it anew.");
  process.exit(1);
}
