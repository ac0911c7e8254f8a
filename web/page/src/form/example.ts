// The examples of a test, as something to begin with.

import type { Test } from "../contract";
import { design, show } from "../state";
import { designOf, wordsOf } from "./said";

/** The example of the test that asks what is asked now, or the first. */
export function fillExample(test: Test): void {
  const wish = design.value?.wish;
  const designs = test.examples.map(({ inputs }) => designOf(test, wordsOf(inputs)));
  const example = designs.find((one) => one.wish === wish) ?? designs[0];
  if (example) show(example, true);
}
