import type { FromWorker } from "./messages.js";
import type { StartThread } from "./thread.js";

/** A worker made of a blob, which a page that was opened from a file can start too. */
export const startThread: StartThread = (source, listener) => {
  const address = URL.createObjectURL(new Blob([source], { type: "text/javascript" }));
  const worker = new Worker(address);
  URL.revokeObjectURL(address);
  worker.onmessage = (event: MessageEvent<FromWorker>) => listener.heard(event.data);
  worker.onerror = (event) => listener.failed(event.message || "The worker could not be started.");
  return {
    post: (message) => worker.postMessage(message),
    end: () => worker.terminate(),
    hold: () => {},
  };
};
