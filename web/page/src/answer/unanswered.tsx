// What stands in the place of an answer: what is still needed, what is wrong, or that it was stopped.

import type { ComponentChildren } from "preact";
import type { Failure, Test } from "../contract";
import { focusOn } from "../focus";
import { fieldsOf } from "../form/parts";
import { fillExample } from "../form/example";
import { fieldOfError } from "../form/fields";
import { inLabels } from "../form/words";
import { again, type Outcome, work } from "../live";
import { design } from "../state";
import { texts } from "../texts";

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

export function Unanswered({ test, now }: { test: Test; now: Outcome }) {
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
  if (now.kind === "stopped" || now.kind === "failed") {
    return (
      <>
        <Message testid={now.kind}>{texts.answer[now.kind]}</Message>
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
