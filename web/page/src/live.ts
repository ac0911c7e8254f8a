// The answer to what is typed. A pause in typing asks the core, and a newer question ends the one that still runs.

import { effect, signal } from "@preact/signals";
import type { Answer, Failure, SolveRequest, Test } from "./contract";
import { type Design } from "./form/design";
import { inputsOf, type Lack } from "./form/inputs";
import { change, design, kel, kept, test, tests } from "./state";

export type Outcome =
  | { kind: "empty"; lacks: readonly Lack[] }
  | { kind: "answered"; answer: Answer; request: SolveRequest; design: Design }
  | { kind: "error"; error: Failure["error"]; design: Design }
  | { kind: "stopped" | "failed" };

export const outcome = signal<Outcome>({ kind: "empty", lacks: [] });

/** Whether the core is at work: "long" once it is worth telling. */
export const work = signal<"none" | "short" | "long">("none");

const pauseInTyping = 100;
const worthTelling = 400;
// A half-typed number is seldom meant, so what is wrong with it is told later than an answer.
const patience = 600;

let running: AbortController | undefined;
let aside: AbortController | undefined;
let timers: ReturnType<typeof setTimeout>[] = [];
let heldBack: (() => void) | undefined;

function after(milliseconds: number, then: () => void): void {
  timers.push(setTimeout(then, milliseconds));
}

function endAll(): void {
  running?.abort();
  running = undefined;
  timers.forEach(clearTimeout);
  timers = [];
  heldBack = undefined;
  work.value = "none";
}

export function requestOf(of: Test, one: Design): SolveRequest {
  const { inputs } = inputsOf(of, one);
  return { test: of.name, inputs, names: "dash", explain: true, calls: true } as SolveRequest;
}

function settle(next: Outcome): void {
  const publish = () => {
    heldBack = undefined;
    outcome.value = next;
  };
  if (next.kind === "answered" || next.kind === "stopped") return publish();
  heldBack = publish;
  after(patience, publish);
}

/** Tells at once what is wrong, as when a field is left. */
export function tellNow(): void {
  heldBack?.();
}

async function ask(of: Test, one: Design): Promise<void> {
  const planner = kel.value;
  if (!planner) return;
  const control = new AbortController();
  aside?.abort();
  aside = undefined;
  running = control;
  work.value = "short";
  after(worthTelling, () => {
    if (running === control) work.value = "long";
  });
  const request = requestOf(of, one);
  try {
    const reply = await planner.solve(request, { signal: control.signal });
    if (running !== control) return;
    running = undefined;
    work.value = "none";
    if ("error" in reply) settle({ kind: "error", error: reply.error, design: one });
    else settle({ kind: "answered", answer: reply, request, design: one });
  } catch {
    if (running !== control) return;
    endAll();
    outcome.value = { kind: "failed" };
  }
}

export function stop(): void {
  endAll();
  outcome.value = { kind: "stopped" };
}

function follow(immediately: boolean): void {
  const of = test.value;
  const one = design.value;
  endAll();
  if (!of || !one || !kel.value) {
    outcome.value = { kind: "empty", lacks: [] };
    return;
  }
  const { lacks } = inputsOf(of, one);
  if (lacks.length > 0) {
    if (lacks.some(({ unclear }) => unclear)) settle({ kind: "empty", lacks });
    else outcome.value = { kind: "empty", lacks };
    return;
  }
  if (immediately) void ask(of, one);
  else after(pauseInTyping, () => void ask(of, one));
}

export function again(): void {
  follow(true);
}

let lastTest = "";

/** Starts answering; to be called once. Another test or question is answered without a pause. */
export function answerWhileTyping(): void {
  effect(() => {
    const name = `${design.value?.test} ${design.value?.wish}`;
    const fresh = name !== lastTest || kel.value === null;
    lastTest = name;
    follow(fresh);
  });
  effect(() => {
    const waiting = kept.value.find(({ reply }) => reply === undefined);
    if (waiting && kel.value && work.value === "none") void answerKept(waiting.id, waiting.design);
  });
}

/** Answers a design that is kept and has no answer yet, such as one of an address. What is typed goes first. */
async function answerKept(id: number, one: Design): Promise<void> {
  const of = tests.value.find(({ name }) => name === one.test);
  if (!of || !kel.value || aside) return;
  const control = new AbortController();
  aside = control;
  const { inputs } = inputsOf(of, one);
  const request = { test: of.name, inputs, names: "dash" } as SolveRequest;
  const reply = await kel.value.solve(request, { signal: control.signal }).catch(() => undefined);
  // What is typed may have ended it, and then it is asked again once that is answered.
  if (aside !== control) return;
  aside = undefined;
  if (reply) change(id, { reply });
}
