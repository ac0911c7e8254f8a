// Designs side by side.

import { useRef } from "preact/hooks";
import type { Answer, Test } from "../contract";
import { type Design, fieldsOf, inputsOf } from "../form/design";
import { soughtBy } from "../form/wishes";
import { capital, inLabels } from "../form/words";
import { showCount, showPower } from "../numbers";
import { focusOn } from "../focus";
import { loadDesigns, saveDesigns } from "../save";
import { change, type Kept, keepInputs, kept, notice, remove, show, tests } from "../state";
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

function KeptRow({ one, number }: { one: Kept; number: number }) {
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

function saveAll(): void {
  const designs = kept.value.flatMap(({ name, design }) => {
    const test = tests.value.find((one) => one.name === design.test);
    return test ? [{ test: test.name, name, inputs: inputsOf(test, design).inputs }] : [];
  });
  saveDesigns(designs);
}

async function loadFile(file: File | undefined): Promise<void> {
  if (!file) return;
  const { designs, problem } = loadDesigns(await file.text());
  const count = keepInputs(designs);
  notice.value = count > 0 ? say.loaded(count) : (problem ?? say.notLoaded);
}

/** Opens designs of a file. The button presses the browser's own, which cannot be styled. */
export function LoadButton() {
  const input = useRef<HTMLInputElement>(null);
  return (
    <>
      <button
        type="button"
        class="quiet"
        data-testid="load-designs"
        title={say.loadHelp}
        onClick={() => input.current?.click()}
      >
        {say.load}
      </button>
      <input
        ref={input}
        type="file"
        accept=".json,application/json"
        hidden
        data-testid="load-file"
        onChange={(event) => {
          void loadFile(event.currentTarget.files?.[0]);
          event.currentTarget.value = "";
        }}
      />
    </>
  );
}

export function Comparison() {
  if (kept.value.length === 0) return null;
  return (
    <section class="comparison">
      <div class="bar">
        <h2 id="comparison-title" tabIndex={-1}>
          {say.title}
        </h2>
        <div class="buttons">
          <button type="button" class="quiet" data-testid="save-designs" onClick={saveAll}>
            {say.save}
          </button>
          <LoadButton />
        </div>
      </div>
      <div class="wide" role="region" aria-labelledby="comparison-title" tabIndex={0}>
        <table role="table" data-testid="comparison">
          <thead role="rowgroup">
            <tr role="row">
              <th role="columnheader" scope="col">
                {say.name}
              </th>
              <th role="columnheader" scope="col">
                {say.test}
              </th>
              <th role="columnheader" scope="col">
                {say.asked}
              </th>
              <th role="columnheader" scope="col">
                {say.answer}
              </th>
              <th role="columnheader" scope="col" class="figure">
                {say.total}
              </th>
              <th role="columnheader" scope="col" class="figure">
                {say.power}
              </th>
              <td role="cell" />
            </tr>
          </thead>
          <tbody role="rowgroup">
            {kept.value.map((one, i) => (
              <KeptRow key={one.id} one={one} number={i + 1} />
            ))}
          </tbody>
        </table>
      </div>
    </section>
  );
}
