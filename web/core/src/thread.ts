import type { FromWorker, ToWorker } from "./messages.js";

/** A worker of either kind. */
export interface Thread {
  post(message: ToWorker): void;
  /** Ends it at once, whatever it does. */
  end(): void;
  /** Whether it keeps a program of Node running. */
  hold(holds: boolean): void;
}

export interface Listener {
  heard(message: FromWorker): void;
  failed(message: string): void;
}

export type StartThread = (source: string, listener: Listener) => Thread;
