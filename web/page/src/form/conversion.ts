// Published results, and the effect sizes that follow from them.

import { useEffect, useState } from "preact/hooks";
import type { Conversion, ConversionWay, Failure, Parameter, Test, Value } from "../contract";
import { kel } from "../state";
import type { Design } from "./design";
import { formsOf } from "./forms";
import { isLack, valueOf } from "./inputs";

/** The ways from published results to the effect of a test. A way that only starts from the same input is none. */
export function waysTo(test: Test, ways: readonly ConversionWay[]): ConversionWay[] {
  return ways.filter((way) =>
    way.uses.some((use) => use.test === test.name && !(way.needs.length === 1 && way.needs[0] === use.input)),
  );
}

export type Typed = Readonly<Record<string, readonly string[]>>;

export function entriesFor(parameter: Parameter, typed: Typed): readonly string[] {
  const entries = typed[parameter.name] ?? [];
  return Array.from({ length: parameter.length ?? 1 }, (_, i) => entries[i] ?? "");
}

/** The inputs of a conversion, or nothing while one is lacking. */
export function inputsOfWay(
  way: ConversionWay,
  parameters: readonly Parameter[],
  typed: Typed,
): Record<string, Value> | null {
  const inputs: Record<string, Value> = {};
  for (const parameter of parameters) {
    const needed = way.needs.includes(parameter.name);
    if (parameter.kind === "flag" && needed) {
      inputs[parameter.name] = true;
      continue;
    }
    const value = valueOf(parameter, entriesFor(parameter, typed));
    if (value === undefined ? needed : isLack(value)) return null;
    if (value !== undefined && !isLack(value)) inputs[parameter.name] = value;
  }
  return inputs;
}

/** A design with an effect filled in, in the form that takes it. */
export function withEffect(test: Test, now: Design, input: string, values: readonly number[]): Design {
  const wish = formsOf(test, now.wish).some((form) => form.needs.includes(input)) ? now.wish : "sample-size";
  const form = formsOf(test, wish).find(({ needs }) => needs.includes(input));
  const entries = values.map((value) => String(Number(value.toPrecision(6))));
  return { ...now, wish, form: form?.key ?? now.form, texts: { ...now.texts, [input]: entries } };
}

export type Reply = Conversion | Failure;

export function useConversion(inputs: Record<string, Value> | null): Reply | null {
  const [reply, setReply] = useState<Reply | null>(null);
  const request = inputs ? JSON.stringify(inputs) : "";
  useEffect(() => {
    if (request === "") return setReply(null);
    let current = true;
    const timer = setTimeout(() => {
      const asked = kel.value?.convert({ inputs: JSON.parse(request) as Record<string, Value>, names: "dash" });
      asked?.then((answer) => current && setReply(answer as Reply)).catch(() => undefined);
    }, 150);
    return () => {
      current = false;
      clearTimeout(timer);
    };
  }, [request]);
  return reply;
}
