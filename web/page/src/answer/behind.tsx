// What is behind an answer, to be read after the picture.

import type { Answer, Test } from "../contract";
import { capital } from "../form/words";
import { outcome } from "../live";
import { texts } from "../texts";
import { Calls } from "./calls";
import { Explanation } from "./explanation";
import { assumptionRows, inputRows, resultRows, type Row } from "./words";

function Rows({ title, rows }: { title: string; rows: readonly Row[] }) {
  if (rows.length === 0) return null;
  return (
    <tbody>
      <tr class="group-row">
        <th scope="rowgroup" colSpan={2}>
          {title}
        </th>
      </tr>
      {rows.map(({ name, label, text }) => (
        <tr key={name}>
          <th scope="row">{capital(label)}</th>
          <td>{text}</td>
        </tr>
      ))}
    </tbody>
  );
}

function Results({ test, answer }: { test: Test; answer: Answer }) {
  return (
    <table class="results" data-testid="results">
      <caption class="offscreen">{texts.answer.results}</caption>
      <Rows title={texts.answer.results} rows={resultRows(test, answer)} />
      <Rows title={texts.answer.inputs} rows={inputRows(test, answer)} />
      <Rows title={texts.answer.assumes} rows={assumptionRows(test, answer)} />
    </table>
  );
}

export function Behind({ test }: { test: Test }) {
  const now = outcome.value;
  if (now.kind !== "answered" || now.design.test !== test.name) return null;
  return (
    <section class="behind" aria-label={texts.answer.behind}>
      <Results test={test} answer={now.answer} />
      <Explanation answer={now.answer} />
      <Calls answer={now.answer} />
    </section>
  );
}
