import type { Door } from "./doors.js";

/** What a worker is told: first the compiled module, then requests one at a time. */
export type ToWorker = { kind: "start"; module: WebAssembly.Module } | { kind: "ask"; door: Door; request: string };

/** What it replies, a message for each. */
export type FromWorker =
  { kind: "ready"; version: string } | { kind: "answer"; answer: string } | { kind: "fault"; message: string };
