// Numbers among the words of someone who looks for a test: "a difference of 5 with SD 10" already fills in the form.

import type { Test } from "../contract";
import { type Design } from "../form/design";
import { inputsOf } from "../form/inputs";
import { designOf } from "../form/said";
import { parameterOf } from "../form/wishes";
import { labelOf } from "../form/words";
import { readNumber } from "../numbers";
import { suggestions } from "../texts";

interface Naming {
  words: string;
  /** Inputs that the words may mean; a test takes the first that it has. */
  inputs: readonly string[];
  /** Whether the words may also follow the number, as in "80% power". */
  after?: true;
}

const namings: readonly Naming[] = [
  { words: "mean differences?|differences?|delta|change", inputs: ["mean-difference"] },
  { words: "sds?|standard deviations?|sigma", inputs: ["sd", "sd-difference"] },
  { words: "power", inputs: ["power"], after: true },
  { words: "alpha|significance level|significance", inputs: ["alpha"] },
  { words: "cohen'?s d|effect sizes?|d", inputs: ["effect-d"] },
  { words: "cohen'?s f|f", inputs: ["effect-f"] },
  { words: "odds ratio|or", inputs: ["odds-ratio"] },
  { words: "relative risk|risk ratio|rr", inputs: ["risk-ratio"] },
  { words: "correlation|rho|r", inputs: ["r"] },
  { words: "drop-?out|loss", inputs: ["dropout"], after: true },
  { words: "margin of error|half-width|precision|plus or minus", inputs: ["half-width"] },
  { words: "margin", inputs: ["margin", "half-width"] },
  { words: "predictors", inputs: ["predictors"], after: true },
  { words: "sample size|n", inputs: ["n"] },
];

const number = "[-\u2212]?(?:\\d+(?:[.,]\\d+)*|[.,]\\d+)(?:\\s?%)?";
const link = "\\s*(?:of|is|=|:|about|around)?\\s*";

/** A probability as it is used: "80 power" means 0.8. */
function asProbability(name: string, text: string): string {
  const reading = readNumber(text, false);
  const isShare = ["power", "alpha", "dropout"].includes(name);
  return isShare && "value" in reading && reading.value > 1 && reading.value < 100 ? `${text}%` : text;
}

function numberBy(text: string, { words, inputs, after }: Naming): string | undefined {
  const name = inputs[0] ?? "";
  const before = new RegExp(`(?:^|[^a-z'-])(?:${words})${link}(${number})`, "i").exec(text)?.[1];
  const behind = after ? new RegExp(`(${number})\\s*(?:${words})(?![a-z])`, "i").exec(text)?.[1] : undefined;
  const found = before ?? behind;
  return found === undefined ? undefined : asProbability(name, found.replace(/[.,]$/, ""));
}

/** "30% versus 45%" are two proportions, "120 versus 125" two means. */
function pairOf(text: string): { name: string; entries: string[] } | undefined {
  const pair = new RegExp(`(${number})\\s*(?:vs\\.?|versus|against|compared with|to)\\s*(${number})`, "i").exec(text);
  if (!pair?.[1] || !pair[2]) return undefined;
  const entries = [pair[1], pair[2]];
  const values = entries.map((entry) => readNumber(entry, false));
  const shares = values.every((value) => "value" in value && value.value > 0 && value.value < 1);
  return { name: shares ? "proportions" : "means", entries };
}

/** The numbers of a text, by the inputs that they may be. */
function numbersIn(text: string): { inputs: readonly string[]; entries: string[] }[] {
  const found = namings.flatMap((naming) => {
    const entry = numberBy(text, naming);
    return entry === undefined ? [] : [{ inputs: naming.inputs, entries: [entry] }];
  });
  const pair = pairOf(text);
  return pair ? [...found, { inputs: [pair.name], entries: pair.entries }] : found;
}

export interface Given {
  design: Design;
  /** What was understood, in the words of the form. */
  words: string;
}

/** The design of a test that the numbers of a text fill in, or nothing where it has none of them. */
export function givenBy(test: Test, text: string): Given | undefined {
  const words: Record<string, string[]> = {};
  for (const { inputs, entries } of numbersIn(text)) {
    const name = inputs.find((one) => parameterOf(test, one));
    const parameter = name ? parameterOf(test, name) : undefined;
    if (name && (entries.length === 1 || parameter?.kind !== "number")) words[name] = entries;
  }
  const understood = Object.keys(words);
  if (understood.length === 0) return undefined;
  if (!words["n"] && !words["half-width"] && !words["power"]) words["power"] = [suggestions["power"] ?? "0.8"];
  const design = designOf(test, words);
  const { inputs } = inputsOf(test, design);
  const shown = understood.filter((name) => inputs[name] !== undefined);
  if (shown.length === 0) return undefined;
  return { design, words: shown.map((name) => `${labelOf(test, name)} ${(words[name] ?? []).join(", ")}`).join("; ") };
}
