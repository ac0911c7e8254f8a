// What the page holds: the planner, the design that is typed, and those kept beside it. The address shows all of it.

import { batch, computed, signal } from "@preact/signals";
import { readAddress, writeAddress } from "./address";
import type { Answer, Description, Failure, Kelpower, Test } from "./contract";
import { type Design } from "./form/design";
import { designOf, wordsOf } from "./form/said";
import { texts } from "./texts";

export interface Kept {
  id: number;
  name: string;
  design: Design;
  reply?: Answer | Failure;
}

export const kel = signal<Kelpower | null>(null);
export const description = signal<Description | null>(null);
export const design = signal<Design | null>(null);
export const kept = signal<readonly Kept[]>([]);

/** A short message for a moment, such as that something was copied. */
export const notice = signal("");

export const tests = computed<readonly Test[]>(() => description.value?.tests ?? []);
export const test = computed<Test | null>(() => tests.value.find(({ name }) => name === design.value?.test) ?? null);

/** Marks the steps that the page has made, as against an address that someone has written. */
const ours = { kelpower: true };

/** The address follows what is typed before its answer comes. */
const pause = 90;
const retry = 1000;

let lastId = 0;
let shown = "";
let timer: ReturnType<typeof setTimeout> | undefined;

function writeNow(push: boolean): void {
  clearTimeout(timer);
  timer = undefined;
  const address = writeAddress(tests.value, { design: design.value, kept: [...kept.value] });
  if (address === shown) return;
  try {
    history[push ? "pushState" : "replaceState"](ours, "", address);
    shown = address;
  } catch {
    // Browsers refuse too many changes in a short time.
    timer = setTimeout(() => writeNow(push), retry);
  }
}

/** Shows a design. A step that "back" should undo is pushed; what is typed only mends the address, after a pause. */
export function show(next: Design | null, push: boolean): void {
  if (push && timer !== undefined) writeNow(false);
  design.value = next;
  if (push) return writeNow(true);
  clearTimeout(timer);
  timer = setTimeout(() => writeNow(false), pause);
}

/** The address of what is shown now, with the last keystroke in it. */
export function currentAddress(): string {
  writeNow(false);
  return location.href;
}

export function setTexts(name: string, entries: readonly string[]): void {
  const now = design.value;
  if (now) show({ ...now, texts: { ...now.texts, [name]: entries } }, false);
}

/** Sets an input to a value, as a picture does that is dragged. */
export function setValue(name: string, value: unknown): void {
  setTexts(name, wordsOf({ [name]: value })[name] ?? []);
}

/** Shows what the address says: at the start, and after an address was written or pasted. */
export function readFromAddress(): void {
  const hash = location.hash;
  if (hash === shown && shown !== "") return;
  shown = hash;
  const address = readAddress(tests.value, hash);
  batch(() => {
    design.value = address.design;
    kept.value = address.kept.map((one) => {
      const known = kept.value.find(({ name, design: old }) => name === one.name && sameTexts(old, one.design));
      return known ?? { id: ++lastId, ...one };
    });
  });
  history.replaceState(ours, "", location.href);
}

/** Goes a step back or on. The designs that are kept stay, for they were not kept by a step. */
export function readStep(): void {
  if ((history.state as typeof ours | null)?.kelpower !== true) return readFromAddress();
  shown = location.hash;
  design.value = readAddress(tests.value, location.hash).design;
  writeNow(false);
}

function sameTexts(a: Design, b: Design): boolean {
  return JSON.stringify(a) === JSON.stringify(b);
}

export function keep(one: Design, name?: string, reply?: Answer | Failure): void {
  const id = ++lastId;
  const added: Kept = { id, name: name ?? texts.compare.design(kept.value.length + 1), design: one };
  if (reply) added.reply = reply;
  kept.value = [...kept.value, added];
  writeNow(false);
}

export function change(id: number, changes: Partial<Kept>): void {
  kept.value = kept.value.map((one) => (one.id === id ? { ...one, ...changes } : one));
  writeNow(false);
}

export function remove(id: number): void {
  kept.value = kept.value.filter((one) => one.id !== id);
  writeNow(false);
}

/** Adds designs of a file, and tells how many could be read. */
export function keepInputs(all: readonly { test: string; name?: string; inputs: Record<string, unknown> }[]): number {
  let count = 0;
  for (const { test: name, name: title, inputs } of all) {
    const found = tests.value.find((one) => one.name === name);
    if (!found) continue;
    keep(designOf(found, wordsOf(inputs)), title);
    ++count;
  }
  return count;
}
