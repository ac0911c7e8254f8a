// What can be done with an answer.

import type { Test } from "../contract";
import { inputsOf } from "../form/inputs";
import type { Outcome } from "../live";
import { currentAddress, description, keep, kel, notice } from "../state";
import { planToPrint } from "../save";
import { locale, texts } from "../texts";
import { CopyButton } from "./copy";

type Answered = Extract<Outcome, { kind: "answered" }>;

export function Actions({ test, shown }: { test: Test; shown: Answered }) {
  const print = () => {
    if (!kel.value || !description.value) return;
    void planToPrint({
      design: { test: test.name, inputs: inputsOf(test, shown.design).inputs },
      answer: shown.answer,
      description: test,
      kel: kel.value,
      locale: locale,
    });
  };
  return (
    <div class="buttons actions">
      <button
        type="button"
        data-testid="keep"
        onClick={() => {
          keep(shown.design, undefined, shown.answer);
          notice.value = texts.actions.kept;
        }}
      >
        {texts.actions.keep}
      </button>
      <CopyButton text={currentAddress} testid="copy-link" label={texts.actions.link} />
      <button type="button" class="quiet" data-testid="print-plan" onClick={print}>
        {texts.actions.print}
      </button>
    </div>
  );
}
