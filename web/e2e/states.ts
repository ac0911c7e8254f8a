import type { Example } from "kelpower";
import { open } from "kelpower/direct";

type Inputs = Example["inputs"];

/** A design as the part of the page's address after the number sign. */
export function stateOf(test: string, inputs: Inputs): string {
  const words = Object.entries(inputs).filter(([, value]) => value !== false);
  const pairs = words.map(([name, value]) => (value === true ? name : `${name}=${encodeURIComponent(String(value))}`));
  return `#${test}?${pairs.join("&")}`;
}

export interface Shown {
  readonly test: string;
  readonly inputs: Inputs;
  readonly arguments: string;
  readonly sentence: string;
}

/** All examples of all tests. */
export async function examples(): Promise<Shown[]> {
  const { tests } = (await open()).describe();
  return tests.flatMap(({ name, examples: each }) => each.map((example) => ({ test: name, ...example })));
}
