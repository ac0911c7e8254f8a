// The answer: the number, the sentence, the table, and what is behind it.

import type { ComponentChildren } from "preact";
import type { Answer, Failure, Test } from "../contract";
import { focusOn } from "../focus";
import { fillExample } from "../form/example";
import { fieldsOf, sameDesign } from "../form/design";
import { fieldOfError } from "../form/fields";
import { soughtBy } from "../form/wishes";
import { capital, inLabels } from "../form/words";
import { again, type Outcome, outcome, work } from "../live";
import { design } from "../state";
import { texts } from "../texts";
import { Actions } from "./actions";
import { Calls } from "./calls";
import { CopyButton } from "./copy";
import { Explanation } from "./explanation";
import { Peek, useNumberInSight } from "./peek";
import { Progress } from "./progress";
import { assumptionRows, type Headline, headlineOf, inputRows, resultRows, type Row } from "./words";

type Answered = Extract<Outcome, { kind: "answered" }>;

function Number({ headline }: { headline: Headline }) {
  const element = useNumberInSight();
  return (
    <div class="headline" ref={element}>
      <p class="headline-label" data-testid="number-label">
        {capital(headline.label)}
      </p>
      <p class="number" data-testid="number">
        {headline.text}
      </p>
      {headline.under.map((line) => (
        <p class="under" key={line}>
          {capital(line)}
        </p>
      ))}
    </div>
  );
}

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

function Sentence({ text }: { text: string }) {
  return (
    <div class="sentence">
      <p data-testid="sentence">{text}</p>
      <CopyButton text={text} testid="copy-sentence" label={texts.answer.copy} />
    </div>
  );
}

function Notes({ answer }: { answer: Answer }) {
  if (!answer.note) return null;
  return (
    <div class="notes" data-testid="notes">
      <h3>{texts.answer.notes}</h3>
      <p>{answer.note}</p>
    </div>
  );
}

function Answered({ test, shown }: { test: Test; shown: Answered }) {
  const { answer } = shown;
  const headline = headlineOf(test, answer, soughtBy(test, shown.design.wish)?.name);
  return (
    <>
      <Number headline={headline} />
      <Peek headline={headline} />
      <Sentence text={answer.sentence} />
      <Actions test={test} shown={shown} />
      <Notes answer={answer} />
    </>
  );
}

/** What is behind the answer, to be read after the picture. */
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

function Message({ testid, children }: { testid: string; children: ComponentChildren }) {
  return (
    <p class="message" data-testid={testid}>
      {children}
    </p>
  );
}

/** Leads to the field that is to be mended, which may be out of sight. */
function ToField({ test, error }: { test: Test; error: Failure["error"] }) {
  const parameter = design.value ? fieldOfError(error, fieldsOf(test, design.value)) : undefined;
  if (!parameter) return null;
  const go = () => {
    const field = document.querySelector<HTMLElement>(`#in-${parameter.name}, #in-${parameter.name}-1`);
    field?.scrollIntoView({ block: "center" });
    field?.focus();
  };
  return (
    <button type="button" class="quiet" data-testid="to-field" onClick={go}>
      {texts.answer.toField(parameter.label)}
    </button>
  );
}

function Other({ test, now }: { test: Test; now: Outcome }) {
  if (work.value === "long") return null;
  if (now.kind === "error") {
    return (
      <>
        <p class="headline-label">{texts.answer.problem}</p>
        <Message testid="error">{inLabels(test, now.error.template ?? now.error.message)}</Message>
        <ToField test={test} error={now.error} />
      </>
    );
  }
  if (now.kind === "stopped") {
    return (
      <>
        <Message testid="stopped">{texts.answer.stopped}</Message>
        <button type="button" data-testid="again" onClick={again}>
          {texts.answer.again}
        </button>
      </>
    );
  }
  const names =
    now.kind === "empty" ? now.lacks.filter(({ unclear }) => !unclear).map(({ parameter }) => parameter.label) : [];
  return (
    <>
      <p class="message">{texts.answer.empty}</p>
      {names.length > 0 && <Message testid="lacks">{texts.answer.lacks(names)}</Message>}
      <button
        type="button"
        class="quiet"
        data-testid="example"
        onClick={() => {
          fillExample(test);
          focusOn("answer");
        }}
      >
        {texts.test.example}
      </button>
    </>
  );
}

export function AnswerPanel({ test }: { test: Test }) {
  const now = outcome.value;
  const typed = design.value;
  const current =
    now.kind !== "answered" ||
    (typed !== null && typed.test === now.design.test && sameDesign(test, typed, now.design));
  const ofThisTest = now.kind !== "answered" || now.design.test === test.name;
  return (
    <section
      class="answer"
      id="answer"
      tabIndex={-1}
      aria-labelledby="answer-title"
      data-testid="answer"
      data-state={work.value === "none" ? now.kind : "computing"}
    >
      <h2 id="answer-title" class="offscreen">
        {texts.answer.title}
      </h2>
      <Progress />
      <div class={current ? "" : "stale"}>
        {now.kind === "answered" && ofThisTest ? <Answered test={test} shown={now} /> : <Other test={test} now={now} />}
      </div>
    </section>
  );
}
