// What is asked of a test, and in which form the effect is given.

import type { Test } from "../contract";
import { outcome } from "../live";
import { design, show } from "../state";
import { texts } from "../texts";
import { carriedOver } from "./carry";
import { Choice } from "./choice";
import { type Aim, aimOf, aimsOf, formsBeside, withAim } from "./aims";
import { formOf, labelOfForm, nearestForm, offeredOf } from "./forms";
import type { Design } from "./design";
import { nearestSought, questionsOf, soughtBy, soughtOf, type Wish } from "./wishes";
import { capital, labelOf } from "./words";

/** Shows another question or form of the same study, with what its answer has told already. */
function turnTo(test: Test, next: Design): void {
  const before = outcome.value;
  const known = before.kind === "answered" && before.design.test === test.name;
  show(known ? carriedOver(test, next, before.answer) : next, true);
}

function ask(test: Test, now: Design, wish: Wish): void {
  const needs = formOf(test, now.wish, now.form).needs;
  turnTo(test, { ...now, wish, form: nearestForm(test, wish, needs).key });
}

function SoughtSelect({ test, now }: { test: Test; now: Design }) {
  const all = soughtOf(test);
  const group = (target: string, label: string) => {
    const some = all.filter((one) => one.target === target);
    return some.length === 0 ? null : (
      <optgroup label={label}>
        {some.map(({ wish, name }) => (
          <option key={wish} value={wish}>
            {capital(labelOf(test, name))}
          </option>
        ))}
      </optgroup>
    );
  };
  return (
    <div class="field">
      <label for="unknown">{texts.test.solveFor}</label>
      <select
        id="unknown"
        data-testid="unknown"
        value={now.wish}
        onChange={(event) => ask(test, now, event.currentTarget.value)}
      >
        {group("power", texts.test.forPower)}
        {group("half-width", texts.test.forHalfWidth)}
      </select>
    </div>
  );
}

export function QuestionChoice({ test }: { test: Test }) {
  const now = design.value;
  if (!now) return null;
  const offered: string[] = questionsOf(test);
  const sought = soughtBy(test, now.wish);
  const nearest = nearestSought(test, formOf(test, now.wish, now.form).needs);
  if (nearest) offered.splice(offered.indexOf("power") + 1, 0, "unknown");
  return (
    <fieldset class="question" data-testid="question">
      <legend>{texts.test.question}</legend>
      <div class="choices">
        {offered.map((question) => {
          const words = texts.questions[question === "unknown" ? "sought" : question];
          const chosen = question === "unknown" ? sought !== undefined : now.wish === question;
          return (
            <Choice
              key={question}
              group="question"
              value={question}
              chosen={chosen}
              label={words?.label ?? question}
              help={words?.help ?? ""}
              onChoose={() => ask(test, now, question === "unknown" ? (nearest?.wish ?? "power") : question)}
            />
          );
        })}
      </div>
      {sought && <SoughtSelect test={test} now={now} />}
    </fieldset>
  );
}

/** What is to be shown, where a test can show more than that there is an effect. */
export function AimChoice({ test }: { test: Test }) {
  const now = design.value;
  if (!now) return null;
  const aims = aimsOf(test, now.wish);
  if (aims.length < 2) return null;
  const chosen = aimOf(test, now);
  return (
    <fieldset class="form" data-testid="aim">
      <legend>{texts.test.aim}</legend>
      <div class="choices small">
        {aims.map((aim: Aim) => (
          <Choice
            key={aim.key}
            group="aim"
            value={aim.key}
            chosen={aim.key === chosen?.key}
            label={capital(aim.label)}
            help={aim.help}
            onChoose={() => turnTo(test, withAim(test, now, aim))}
          />
        ))}
      </div>
    </fieldset>
  );
}

export function FormChoice({ test }: { test: Test }) {
  const now = design.value;
  if (!now) return null;
  const beside = formsBeside(test, now.wish, formOf(test, now.wish, now.form));
  const forms = offeredOf(beside, now.form);
  if (forms.length < 2) return null;
  return (
    <fieldset class="form" data-testid="form">
      <legend>{now.wish.includes("half-width") ? texts.test.formOfEstimate : texts.test.form}</legend>
      <div class="choices small">
        {forms.map((form) => (
          <Choice
            key={form.key}
            group="form"
            value={form.key}
            chosen={form.key === now.form}
            label={capital(labelOfForm(test, now.wish, form, beside))}
            onChoose={() => turnTo(test, { ...now, form: form.key })}
          />
        ))}
      </div>
    </fieldset>
  );
}
