// What is known already when another question is asked: a size that was found goes into the field for sizes, an effect size
// that was worked out into the field for it.

import type { Answer, Test } from "../contract";
import type { Design } from "./design";
import { fieldsOf } from "./parts";

const figures = 6;

function textsOf(value: unknown, spreads: boolean): string[] {
  const numbers = (Array.isArray(value) ? value : [value]) as unknown[];
  if (!numbers.every((number) => typeof number === "number")) return [];
  const texts = numbers.map((number) =>
    String(Number.isInteger(number) ? number : Number(number.toPrecision(figures))),
  );
  return spreads && texts.every((text) => text === texts[0]) ? texts.slice(0, 1) : texts;
}

function isEmpty(texts: readonly string[] | undefined): boolean {
  return (texts ?? []).every((text) => text.trim() === "");
}

/** A design with the empty ones of the fields that it needs filled in from the answer before. */
export function carriedOver(test: Test, design: Design, before: Answer): Design {
  const texts: Record<string, readonly string[]> = { ...design.texts };
  for (const { parameter, needed } of fieldsOf(test, design)) {
    if (!needed || !isEmpty(texts[parameter.name])) continue;
    const found = textsOf(before.results[parameter.name], parameter.spreads === true);
    if (found.length > 0) texts[parameter.name] = found;
  }
  return { ...design, texts };
}
