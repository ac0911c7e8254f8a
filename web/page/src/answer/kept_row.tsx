// One of the designs side by side.

import type { Answer, Test } from "../contract";
import { focusOn } from "../focus";
import type { Design } from "../form/design";
import { fieldsOf } from "../form/parts";
import { inputsOf } from "../form/inputs";
import { soughtBy } from "../form/wishes";
import { capital, inLabels } from "../form/words";
import { showCount, showPower } from "../numbers";
import { change, type Kept, kept, remove, show, tests } from "../state";
import { texts } from "../texts";
import { headlineOf, showValue } from "./words";

const say = texts.compare;

/** What is given in a few words: "effect size d 0.5, target power 0.8". */
function givenWords(test: Test, design: Design): string {
  const { inputs } = inputsOf(test, design);
  return fieldsOf(test, design)
    .flatMap(({ parameter }) => {
      const value = inputs[parameter.name];
      if (value === undefined) return [];
      return [value === true ? parameter.label : `${parameter.label} ${showValue(value, undefined)}`];
    })
    .join("; ");
}

interface Cells {
  answer: string;
  total: string;
  power: string;
}

function cellsOf(test: Test, { reply, design }: Kept): Cells {
  if (!reply) return { answer: "…", total: "…", power: "…" };
  if ("error" in reply)
    return { answer: inLabels(test, reply.error.template ?? reply.error.message), total: say.none, power: say.none };
  const answer = reply as Answer;
  const headline = headlineOf(test, answer, soughtBy(test, design.wish)?.name);
  const total = answer.results["total"] ?? answer.results["n"] ?? answer.inputs["n"];
  const power = answer.results["power"] ?? answer.results["expected-power"];
  return {
    answer: `${capital(headline.label)}: ${headline.text}`,
    total: typeof total === "number" ? showCount(total) : say.none,
    power: typeof power === "number" ? showPower(power) : say.none,
  };
}

export function KeptRow({ one, number }: { one: Kept; number: number }) {
  const test = tests.value.find(({ name }) => name === one.design.test);
  if (!test) return null;
  const cells = cellsOf(test, one);
  return (
    <tr role="row">
      <td role="cell">
        <input
          type="text"
          value={one.name}
          aria-label={say.rename(one.name)}
          data-testid={`name-${number}`}
          onChange={(event) => change(one.id, { name: event.currentTarget.value })}
        />
      </td>
      <td role="cell">{test.title}</td>
      <td role="cell" data-label={say.asked}>
        {capital(givenWords(test, one.design))}
      </td>
      <td role="cell">
        <strong>{cells.answer}</strong>
      </td>
      <td role="cell" class="figure" data-label={say.total}>
        {cells.total}
      </td>
      <td role="cell" class="figure" data-label={say.power}>
        {cells.power}
      </td>
      <td role="cell">
        <div class="buttons">
          <button
            type="button"
            class="quiet"
            data-testid={`load-${number}`}
            aria-label={say.openNamed(one.name)}
            onClick={() => {
              show(one.design, true);
              focusOn("title");
            }}
          >
            {say.open}
          </button>
          <button
            type="button"
            class="quiet"
            data-testid={`remove-${number}`}
            aria-label={say.removeNamed(one.name)}
            onClick={() => {
              remove(one.id);
              focusOn(kept.value.length > 0 ? "comparison-title" : "title");
            }}
          >
            {say.remove}
          </button>
        </div>
      </td>
    </tr>
  );
}
