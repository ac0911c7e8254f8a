// A design and those kept beside it, as the part of an address after "#", in the words of the program.
//
//   #two-means?effect-d=0.5&power=0.8;Larger%20effect:two-means?effect-d=0.8&power=0.8

import type { Test, Value } from "./contract";
import type { Design } from "./form/design";
import { isLack, valueOf } from "./form/inputs";
import { fieldsOf } from "./form/parts";
import { designOf } from "./form/said";
import { entriesOf } from "./form/shape";
import { soughtBy } from "./form/wishes";

export interface Named {
  name: string;
  design: Design;
}

export interface Address {
  design: Design | null;
  kept: Named[];
}

/** Escapes what has a meaning in an address, and leaves commas and the marks of numbers readable. */
function escape(text: string): string {
  return encodeURIComponent(text).replaceAll("%2C", ",").replaceAll("%20", "+");
}

function unescape(text: string): string {
  try {
    return decodeURIComponent(text.replaceAll("+", " "));
  } catch {
    return text;
  }
}

function writeValue(value: Value): string {
  return Array.isArray(value) ? value.join(",") : escape(String(value));
}

function writePair(name: string, value: Value): string {
  return value === true ? name : `${name}=${writeValue(value)}`;
}

export function writeDesign(test: Test, design: Design): string {
  const pairs: string[] = [];
  for (const { parameter, needed } of fieldsOf(test, design)) {
    const entries = entriesOf(test, design, parameter);
    const value = valueOf(parameter, entries);
    const standard = JSON.stringify(value) === JSON.stringify(parameter.default ?? false);
    if (isLack(value)) pairs.push(`${parameter.name}=${entries.map(escape).join(",")}`);
    else if (value === undefined ? needed : needed || !standard) pairs.push(writePair(parameter.name, value ?? ""));
  }
  const sought = soughtBy(test, design.wish);
  if (sought) pairs.push(`solve=${sought.name}`);
  if (design.wish === "half-width") pairs.push("interval");
  return pairs.length > 0 ? `${design.test}?${pairs.join("&")}` : design.test;
}

function readPairs(text: string): Record<string, string[]> {
  const words: Record<string, string[]> = {};
  for (const pair of text.split("&")) {
    if (pair === "") continue;
    const [name = "", ...rest] = pair.split("=");
    words[unescape(name)] = rest.length === 0 ? ["yes"] : unescape(rest.join("=")).split(",");
  }
  return words;
}

/** Reads the program's own words: two-means --effect-d 0.5 --power 0.8 --one-sided. */
function readOptions(parts: readonly string[]): Record<string, string[]> {
  const words: Record<string, string[]> = {};
  let name = "";
  for (const part of parts) {
    if (part.startsWith("--")) {
      const [option = "", value] = part.slice(2).split("=");
      name = option;
      words[option] = value === undefined ? ["yes"] : value.split(",");
    } else if (name !== "") {
      words[name] = part.split(",");
      name = "";
    }
  }
  return words;
}

export function readDesign(tests: readonly Test[], text: string): Design | null {
  const [name = "", ...rest] = text.split("?");
  const words = unescape(name).trim().split(/\s+/);
  if (words[0] === "kelpower") words.shift();
  const test = tests.find((one) => one.name === words[0]);
  if (!test) return null;
  return designOf(test, words.length > 1 ? readOptions(words.slice(1)) : readPairs(rest.join("?")));
}

export function readAddress(tests: readonly Test[], hash: string): Address {
  const [first = "", ...others] = hash.replace(/^#/, "").split(";");
  const kept: Named[] = [];
  for (const other of others) {
    const colon = other.indexOf(":");
    const design = readDesign(tests, other.slice(colon + 1));
    if (design) kept.push({ name: unescape(other.slice(0, Math.max(colon, 0))), design });
  }
  return { design: readDesign(tests, first), kept };
}

export function writeAddress(tests: readonly Test[], { design, kept }: Address): string {
  const write = (one: Design) => {
    const test = tests.find(({ name }) => name === one.test);
    return test ? writeDesign(test, one) : "";
  };
  const parts = [design ? write(design) : "", ...kept.map((one) => `${escape(one.name)}:${write(one.design)}`)];
  return `#${parts.join(";")}`;
}
