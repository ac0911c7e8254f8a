import { readFileSync } from "node:fs";

import { Ajv2020 } from "ajv/dist/2020.js";
import { expect } from "vitest";

type Schema = Record<string, unknown>;

/** The schema with no member but those it names: what is added must be described. */
function strict(schema: unknown): unknown {
  if (Array.isArray(schema)) return schema.map(strict);
  if (typeof schema !== "object" || schema === null) return schema;
  const result: Schema = Object.fromEntries(Object.entries(schema).map(([key, each]) => [key, strict(each)]));
  if (result["type"] === "object" && "properties" in result) result["additionalProperties"] ??= false;
  return result;
}

function checkOf(name: string): (reply: unknown) => void {
  const file = new URL(`../../../capi/schema/${name}.json`, import.meta.url);
  const validate = new Ajv2020({ strict: false }).compile(strict(JSON.parse(readFileSync(file, "utf8"))) as Schema);
  return (reply) => {
    validate(reply);
    expect(validate.errors ?? []).toEqual([]);
  };
}

/** Demands of replies that they are as the schemas in capi/schema say. */
export function replyChecks() {
  return {
    answer: checkOf("answer"),
    table: checkOf("table"),
    chart: checkOf("chart"),
    conversion: checkOf("conversion"),
    description: checkOf("description"),
    error: checkOf("error"),
  };
}
