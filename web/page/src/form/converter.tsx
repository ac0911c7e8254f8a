// Works out an effect size from published results, and puts it into the form.

import { useState } from "preact/hooks";
import type { ConversionWay, Parameter, Test } from "../contract";
import { description } from "../state";
import { texts } from "../texts";
import { entriesFor, inputsOfWay, type Typed, useConversion, waysTo } from "./conversion";
import { ConversionResult } from "./conversion_result";
import { Field } from "./field";
import { capital, helpOf, labelOf } from "./words";

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
      {way && reply && inputs && <ConversionResult test={test} way={way} reply={reply} />}
    </details>
  );
}
