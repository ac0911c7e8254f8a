// The effect sizes that were worked out, and the button that puts one into the form.

import type { ConversionWay, Test } from "../contract";
import { showFigure } from "../numbers";
import { description, design, notice, show } from "../state";
import { texts } from "../texts";
import { type Reply, withEffect } from "./conversion";
import { capital, inLabels, labelOf } from "./words";

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

export function ConversionResult({ test, way, reply }: { test: Test; way: ConversionWay; reply: Reply }) {
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
