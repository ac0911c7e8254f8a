import { startThread } from "#thread";

import text from "./description.js";
import type { Answer, Chart, Conversion, Description, Failure, Table } from "./replies.js";
import { Queue } from "./queue.js";
import type { ConvertRequest, DrawRequest, SolveRequest } from "./requests.js";

export type * from "./replies.js";
export type * from "./requests.js";
export { Fault } from "./doors.js";

export interface CallOptions {
  /** Its abortion rejects the call with the signal's reason and ends the computation. */
  readonly signal?: AbortSignal | undefined;
}

/** The planner in a worker of its own. An error of a request is an answer with `error`, and rejects nothing. */
export interface Kelpower {
  /** The release of the planner. */
  readonly version: string;
  /** All tests with their inputs, questions, results and examples, and the conversions of effect sizes. */
  describe(): Description;
  /** Answers one design. */
  solve(request: SolveRequest, options?: CallOptions): Promise<Answer | Failure>;
  /** Answers all combinations of inputs that have several values. */
  tabulate(request: SolveRequest, options?: CallOptions): Promise<Table | Failure>;
  /** The points of a chart. */
  draw(request: DrawRequest, options?: CallOptions): Promise<Chart | Failure>;
  /** The effect sizes that follow from published results. */
  convert(request: ConvertRequest, options?: CallOptions): Promise<Conversion | Failure>;
  /** A signal for the next request of a kind. It ends the one before of the same kind. */
  latest(kind: string): AbortSignal;
  /** Ends the worker. Requests that are not answered are rejected. */
  close(): void;
}

function newestOfEachKind(): (kind: string) => AbortSignal {
  const newest = new Map<string, AbortController>();
  return (kind) => {
    newest.get(kind)?.abort();
    const controller = new AbortController();
    newest.set(kind, controller);
    return controller.signal;
  };
}

/** Starts the planner. */
export async function load(): Promise<Kelpower> {
  const queue = new Queue(startThread);
  const opened = queue.open();
  const description = JSON.parse(text) as Description; // While the worker starts.
  const version = await opened;
  const ask = async <Reply>(door: "solve" | "draw" | "convert", request: object, options?: CallOptions) =>
    JSON.parse(await queue.ask(door, JSON.stringify(request), options?.signal)) as Reply;
  return {
    version,
    describe: () => description,
    solve: (request, options) => ask("solve", request, options),
    tabulate: (request, options) => ask("solve", request, options),
    draw: (request, options) => ask("draw", request, options),
    convert: (request, options) => ask("convert", request, options),
    latest: newestOfEachKind(),
    close: () => queue.close(),
  };
}
