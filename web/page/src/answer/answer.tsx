// The answer: the number and the sentence, or what keeps it from being there.

import type { Answer, Test } from "../contract";
import { sameDesign } from "../form/inputs";
import { soughtBy } from "../form/wishes";
import { capital } from "../form/words";
import { type Outcome, outcome, work } from "../live";
import { design } from "../state";
import { texts } from "../texts";
import { Actions } from "./actions";
import { CopyButton } from "./copy";
import { Peek, useNumberInSight } from "./peek";
import { Progress } from "./progress";
import { Unanswered } from "./unanswered";
import { type Headline, headlineOf } from "./words";

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
        {now.kind === "answered" && ofThisTest ? (
          <Answered test={test} shown={now} />
        ) : (
          <Unanswered test={test} now={now} />
        )}
      </div>
    </section>
  );
}
