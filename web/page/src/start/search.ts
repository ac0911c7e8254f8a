// Which tests fit the words that someone writes.

import type { Test } from "../contract";
import { knownWords, type Words } from "./words";

export interface Found {
  /** Names of tests, the best first. */
  tests: string[];
  /** What is said to the words, such as that something is not offered. */
  hints: string[];
}

const common = new Set([
  "a",
  "an",
  "the",
  "of",
  "in",
  "on",
  "for",
  "with",
  "to",
  "and",
  "or",
  "do",
  "i",
  "my",
  "is",
  "are",
  "need",
  "test",
  "tests",
  "how",
  "many",
  "what",
  "at",
  "by",
  "we",
  "it",
]);

export function plainWords(text: string): string {
  return text
    .toLowerCase()
    .normalize("NFKD")
    .replace(/[\u0300-\u036f]/g, "")
    .replace(/[’`´]/g, "'")
    .replace(/[^a-z0-9'/+-]+/g, " ")
    .trim();
}

function isWordOf(text: string, word: string): boolean {
  const at = ` ${text} `.indexOf(` ${word}`);
  if (at < 0) return false;
  // A short word stands alone: "sd" is not in "sdlc", but "correlation" is in "correlations".
  const after = ` ${text} `.charAt(at + 1 + word.length);
  return word.length > 3 || after === " " || after === "s";
}

/** How well a row of words fits: the length of its longest words in the text, or of a word that is still being typed. */
function fitOf(row: Words, text: string): number {
  let fit = 0;
  for (const word of row.words) {
    if (isWordOf(text, word)) fit = Math.max(fit, word.length);
    else if (text.length >= 3 && word.startsWith(text)) fit = Math.max(fit, text.length);
  }
  return fit;
}

function describedWords(test: Test): string {
  const inputs = test.parameters.map(({ label }) => label).join(" ");
  return plainWords(`${test.name} ${test.title} ${test.about} ${inputs} ${test.sources.join(" ")}`);
}

function describedFit(test: Test, text: string): number {
  const words = text.split(" ").filter((word) => word.length > 2 && !common.has(word));
  const described = ` ${describedWords(test)} `;
  const titled = ` ${plainWords(`${test.name} ${test.title}`)} `;
  let fit = 0;
  for (const word of words) {
    const stem = word.length > 4 ? word.replace(/(ies|es|s)$/, "") : word;
    if (titled.includes(` ${stem}`)) fit += 2;
    else if (described.includes(` ${stem}`)) fit += 1;
  }
  return fit;
}

/** Looks for tests by what people call them. Without words all tests are found, in the order of the core. */
export function search(tests: readonly Test[], typed: string): Found {
  const text = plainWords(typed);
  if (text === "") return { tests: tests.map(({ name }) => name), hints: [] };
  const points = new Map(tests.map((test) => [test.name, describedFit(test, text)]));
  const rows = knownWords.map((row) => ({ row, fit: fitOf(row, text) })).filter(({ fit }) => fit > 0);
  for (const { row, fit } of rows) {
    row.tests.forEach((name, i) => {
      const known = points.get(name);
      if (known !== undefined) points.set(name, known + 10 + fit - i / 10);
    });
  }
  const named = rows.some(({ row }) => row.tests.length > 0);
  const told = rows.filter(({ row }) => row.hint && !(row.any && named)).sort((a, b) => b.fit - a.fit);
  let found = [...points].filter(([, fit]) => fit > 0).sort((a, b) => b[1] - a[1]);
  if (named) found = found.filter(([, fit]) => fit >= 10);
  const general = found.length === 0 && rows.some(({ row }) => row.any);
  const hints = told.map(({ row }) => row.hint ?? "");
  return { tests: general ? tests.map(({ name }) => name) : found.map(([name]) => name), hints: hints.slice(0, 2) };
}
