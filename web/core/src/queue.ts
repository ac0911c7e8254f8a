import { compiledModule } from "./compile.js";
import { Fault, type Door } from "./doors.js";
import type { FromWorker } from "./messages.js";
import type { StartThread, Thread } from "./thread.js";
import source from "./worker_source.js";

/**
 * The milliseconds that a request which is no longer wanted may run on before its worker is ended. A new worker takes
 * about as long to start, so quick requests are better waited for.
 */
const PATIENCE = 40;

interface Job {
  readonly door: Door;
  readonly request: string;
  resolve(answer: string): void;
  reject(reason: unknown): void;
  started: number;
}

/** Requests that one worker answers in their order. A running one that is given up ends the worker, and another starts. */
export class Queue {
  private thread: Thread | undefined;
  private isReady = false;
  private running: Job | undefined;
  private waiting: Job[] = [];
  private version: string | undefined;
  private broken: Error | undefined;
  private greet: (version: string) => void = () => {};
  private refuse: (reason: Error) => void = () => {};

  constructor(private readonly startThread: StartThread) {}

  /** Starts the first worker and gives its release. */
  open(): Promise<string> {
    return new Promise((resolve, reject) => {
      this.greet = resolve;
      this.refuse = reject;
      this.start();
    });
  }

  ask(door: Door, request: string, signal?: AbortSignal): Promise<string> {
    return new Promise((resolve, reject) => {
      if (this.broken) return reject(this.broken);
      if (signal?.aborted) return reject(signal.reason);
      const giveUp = () => this.giveUp(job, signal?.reason);
      const job: Job = {
        door,
        request,
        resolve: (answer) => (signal?.removeEventListener("abort", giveUp), resolve(answer)),
        reject: (reason) => (signal?.removeEventListener("abort", giveUp), reject(reason)),
        started: 0,
      };
      signal?.addEventListener("abort", giveUp);
      this.waiting.push(job);
      this.next();
    });
  }

  close(reason = new Error("This planner is closed.")): void {
    this.broken ??= reason;
    this.thread?.end();
    this.thread = undefined;
    this.running?.reject(reason);
    this.running = undefined;
    for (const job of this.waiting.splice(0)) job.reject(reason);
    this.refuse(reason);
  }

  private start(): void {
    this.isReady = false;
    const thread = this.startThread(source, {
      heard: (message) => thread === this.thread && this.hear(message),
      failed: (message) => thread === this.thread && this.fail(message),
    });
    this.thread = thread;
    compiledModule().then(
      (module) => thread === this.thread && thread.post({ kind: "start", module }),
      (error: unknown) => thread === this.thread && this.fail(String(error)),
    );
  }

  private restart(): void {
    this.thread?.end();
    this.running = undefined;
    this.start();
  }

  private next(): void {
    this.thread?.hold(this.running !== undefined || this.waiting.length > 0 || !this.version);
    if (!this.isReady || this.running) return;
    const job = this.waiting.shift();
    if (!job) return;
    this.running = job;
    job.started = performance.now();
    this.thread?.post({ kind: "ask", door: job.door, request: job.request });
  }

  private hear(message: FromWorker): void {
    if (message.kind === "fault") return this.fail(message.message);
    if (message.kind === "ready") this.becomeReady(message.version);
    if (message.kind === "answer") this.running?.resolve(message.answer);
    this.running = undefined;
    this.next();
  }

  private becomeReady(version: string): void {
    this.isReady = true;
    this.version = version;
    this.greet(version);
  }

  /** A worker that answered before has a fault with this request only. One that never started would not start again. */
  private fail(message: string): void {
    const fault = new Fault(message);
    if (!this.isReady) return this.close(fault);
    this.running?.reject(fault);
    this.restart();
  }

  private giveUp(job: Job, reason: unknown): void {
    job.reject(reason);
    this.waiting = this.waiting.filter((each) => each !== job);
    if (this.running !== job) return this.next();
    const isRunning = () => this.running === job && this.restart();
    setTimeout(isRunning, Math.max(0, PATIENCE - (performance.now() - job.started)));
  }
}
