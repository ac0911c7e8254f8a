// Works out an effect size from published results, and puts it into the form.

import { useEffect, useState } from "preact/hooks";
import type { Conversion, ConversionWay, Failure, Parameter, Test, Value } from "../contract";
import { showFigure } from "../numbers";
import { description, design, kel, notice, show } from "../state";
import { texts } from "../texts";
import { type Design, isLack, valueOf } from "./design";
import { Field } from "./field";
import { formsOf } from "./forms";
import { capital, helpOf, inLabels, labelOf } from "./words";

/** The ways from published results to the effect of a test. A way that only starts from the same input is none. */
export function waysTo(test: Test, ways: readonly ConversionWay[]): ConversionWay[] {
  return ways.filter((way) =>
    way.uses.some((use) => use.test === test.name && !(way.needs.length === 1 && way.needs[0] === use.input)),
  );
}

type Typed = Readonly<Record<string, readonly string[]>>;

function entriesFor(parameter: Parameter, typed: Typed): readonly string[] {
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
function withEffect(test: Test, now: Design, input: string, values: readonly number[]): Design {
  const wish = formsOf(test, now.wish).some((form) => form.needs.includes(input)) ? now.wish : "sample-size";
  const form = formsOf(test, wish).find(({ needs }) => needs.includes(input));
  const entries = values.map((value) => String(Number(value.toPrecision(6))));
  return { ...now, wish, form: form?.key ?? now.form, texts: { ...now.texts, [input]: entries } };
}

type Reply = Conversion | Failure;

function useConversion(inputs: Record<string, Value> | null): Reply | null {
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

function EffectRow({ name, results }: { name: string; results: Readonly<Record<string, unknown>> }) {
  const value = results[name];
  const lower = results[`${name}-lower`];
  const upper = results[`${name}-upper`];
  if (typeof value !== "number") return null;
  const label = description.value?.effects["effect-sizes"].find((size) => size.name === name)?.label ?? name;
  const interval =
    typeof lower === "number" && typeof upper === "number" ? `${showFigure(lower)} to ${showFigure(upper)}` : "";
  return (
    <tr>
      <th scope="row">{capital(label)}</th>
      <td>{showFigure(value)}</td>
      <td>{interval}</td>
    </tr>
  );
}

function Result({ test, way, reply }: { test: Test; way: ConversionWay; reply: Reply }) {
  const effects = description.value?.effects;
  if (!effects) return null;
  if ("error" in reply) {
    return (
      <p class="problem" data-testid="convert-error">
        {inLabels(effects, reply.error.template ?? reply.error.message)}
      </p>
    );
  }
  const results = reply.results as Readonly<Record<string, unknown>>;
  const hasInterval = way.gives.some((name) => `${name}-lower` in results);
  return (
    <>
      {way.uses
        .filter((use) => use.test === test.name)
        .map((use) => {
          const values = use.effects.map((name) => results[name]);
          if (!values.every((value) => typeof value === "number")) return null;
          const numbers = values as number[];
          const label = labelOf(test, use.input);
          return (
            <button
              key={use.input}
              type="button"
              data-testid={`effect-use-${use.input}`}
              onClick={() => {
                if (design.value) show(withEffect(test, design.value, use.input, numbers), true);
                notice.value = texts.convert.used;
              }}
            >
              {texts.convert.use(numbers.map(showFigure).join(", "), label)}
            </button>
          );
        })}
      <table class="figures">
        <caption>{texts.convert.result}</caption>
        {hasInterval && (
          <thead>
            <tr>
              <td />
              <td />
              <th scope="col">{texts.convert.interval}</th>
            </tr>
          </thead>
        )}
        <tbody>
          {way.gives.map((name) => (
            <EffectRow key={name} name={name} results={results} />
          ))}
        </tbody>
      </table>
      {reply.note && <p class="help">{reply.note}</p>}
    </>
  );
}

export function Converter({ test }: { test: Test }) {
  const [chosen, setChosen] = useState("");
  const [typed, setTyped] = useState<Typed>({});
  const effects = description.value?.effects;
  const ways = waysTo(test, effects?.conversions ?? []);
  const way = ways.find(({ needs }) => needs.join("+") === chosen);
  const named = (names: readonly string[]) =>
    names.flatMap((name) => (effects?.parameters.find((one) => one.name === name) ?? []) as Parameter | []);
  const parameters = way ? named([...way.needs, ...way.accepts]) : [];
  const inputs = way ? inputsOfWay(way, parameters, typed) : null;
  const reply = useConversion(inputs);
  const use = ways[0]?.uses.find((one) => one.test === test.name);
  if (!effects || !use) return null;
  const describe = ({ needs }: ConversionWay) =>
    capital(
      named(needs)
        .filter(({ kind }) => kind !== "flag")
        .map(({ label }) => label)
        .join(", "),
    );
  return (
    <details class="converter" data-testid="converter">
      <summary>{texts.convert.title(labelOf(test, use.input))}</summary>
      <div class="field">
        <label for="conversion">{texts.convert.what}</label>
        <select
          id="conversion"
          data-testid="conversion"
          value={chosen}
          onChange={(event) => setChosen(event.currentTarget.value)}
        >
          <option value="">{texts.convert.choose}</option>
          {ways.map((one) => {
            const key = one.needs.join("+");
            return (
              <option key={key} value={key}>
                {describe(one)}
              </option>
            );
          })}
        </select>
      </div>
      {way && (
        <div class="fields">
          {parameters
            .filter(({ kind, name }) => kind !== "flag" || !way.needs.includes(name))
            .map((parameter) => (
              <Field
                key={parameter.name}
                parameter={parameter}
                entries={entriesFor(parameter, typed)}
                count={parameter.length ?? 1}
                help={
                  helpOf(effects, parameter) + (way.needs.includes(parameter.name) ? "" : `; ${texts.form.optional}`)
                }
                error={undefined}
                prefix="convert"
                onChange={(entries) => setTyped((now) => ({ ...now, [parameter.name]: entries }))}
              />
            ))}
        </div>
      )}
      {way && reply && inputs && <Result test={test} way={way} reply={reply} />}
    </details>
  );
}
