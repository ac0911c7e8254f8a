// What a screen reader says of the answer: once it is settled, and short.

import { useEffect, useState } from "preact/hooks";
import type { Test } from "../contract";
import { soughtBy } from "../form/wishes";
import { capital, inLabels } from "../form/words";
import { type Outcome, outcome, work } from "../live";
import { texts } from "../texts";
import { headlineOf } from "./words";

const settled = 900;

export function spokenOf(test: Test, now: Outcome): string {
  if (now.kind === "answered" && now.design.test === test.name) {
    const headline = headlineOf(test, now.answer, soughtBy(test, now.design.wish)?.name);
    return `${capital(headline.label)}: ${headline.text}.`;
  }
  if (now.kind === "error") return inLabels(test, now.error.template ?? now.error.message);
  return now.kind === "stopped" || now.kind === "failed" ? texts.answer[now.kind] : "";
}

export function Status({ test }: { test: Test }) {
  const [said, setSaid] = useState("");
  const text = work.value === "long" ? texts.answer.searching : spokenOf(test, outcome.value);
  useEffect(() => {
    const timer = setTimeout(() => setSaid(text), settled);
    return () => clearTimeout(timer);
  }, [text]);
  return (
    <p class="offscreen" role="status" data-testid="status">
      {said}
    </p>
  );
}
