import { Worker } from "node:worker_threads";

import type { FromWorker } from "./messages.js";
import type { StartThread } from "./thread.js";

/** Gives a worker of Node the two functions of a browser's that the script uses. */
const PRELUDE = `
globalThis.self = globalThis;
import("node:worker_threads").then(({ parentPort }) => {
  globalThis.postMessage = (message) => parentPort.postMessage(message);
  parentPort.on("message", (data) => self.onmessage({ data }));
});
`;

export const startThread: StartThread = (source, listener) => {
  const worker = new Worker(PRELUDE + source, { eval: true, execArgv: [] });
  worker.on("message", (message: FromWorker) => listener.heard(message));
  worker.on("error", (error) => listener.failed(error.message));
  return {
    post: (message) => worker.postMessage(message),
    end: () => void worker.terminate(),
    hold: (holds) => (holds ? worker.ref() : worker.unref()),
  };
};
