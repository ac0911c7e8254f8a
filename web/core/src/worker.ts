/** The script of the worker. It answers one message after the other. */
import { openDoors, type Doors } from "./doors.js";
import type { FromWorker, ToWorker } from "./messages.js";

declare const self: {
  onmessage: (event: { data: ToWorker }) => void;
  postMessage(message: FromWorker): void;
};

let doors: Doors | undefined;

async function reply(message: ToWorker): Promise<FromWorker> {
  if (message.kind === "start") {
    doors = await openDoors(message.module);
    return { kind: "ready", version: doors.version };
  }
  if (!doors) throw new Error("The worker is not started.");
  return { kind: "answer", answer: doors.ask(message.door, message.request) };
}

self.onmessage = ({ data }) => {
  reply(data)
    .catch((error: unknown): FromWorker => ({ kind: "fault", message: String(error) }))
    .then((message) => self.postMessage(message));
};
