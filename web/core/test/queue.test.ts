import { describe, expect, it } from "vitest";

import { Queue } from "../dist/queue.js";
import type { FromWorker, ToWorker } from "../dist/messages.js";
import type { Listener, StartThread } from "../dist/thread.js";

interface Fake {
  readonly listener: Listener;
  readonly heard: ToWorker[];
  ended: boolean;
  holds: boolean;
}

/** Threads that answer nothing by themselves. */
function fakes(): { threads: Fake[]; start: StartThread } {
  const threads: Fake[] = [];
  const start: StartThread = (_source, listener) => {
    const fake: Fake = { listener, heard: [], ended: false, holds: true };
    threads.push(fake);
    return {
      post: (message) => fake.heard.push(message),
      end: () => (fake.ended = true),
      hold: (holds) => (fake.holds = holds),
    };
  };
  return { threads, start };
}

const ready: FromWorker = { kind: "ready", version: "1" };
const turn = () => new Promise((done) => setTimeout(done, 0));
const messageOf = (error: unknown) => (error as Error).message;

/** A queue with its first thread ready. */
async function opened() {
  const { threads, start } = fakes();
  const queue = new Queue(start);
  const opening = queue.open();
  while (!threads[0]?.heard.length) await turn();
  threads[0].listener.heard(ready);
  await opening;
  return { queue, threads };
}

describe("the queue", () => {
  it("refuses to open when the worker does not start", async () => {
    const { threads, start } = fakes();
    const queue = new Queue(start);
    const opening = queue.open().catch(messageOf);
    threads[0]?.listener.failed("no workers here");
    expect(await opening).toBe("no workers here");
    expect(await queue.ask("solve", "{}").catch(messageOf)).toBe("no workers here");
    expect(threads).toHaveLength(1);
  });

  it("gives a worker one request at a time", async () => {
    const { queue, threads } = await opened();
    const [first] = threads;
    const answers = [queue.ask("solve", "1"), queue.ask("draw", "2")];
    expect(first?.heard.slice(1)).toEqual([{ kind: "ask", door: "solve", request: "1" }]);
    first?.listener.heard({ kind: "answer", answer: "one" });
    expect(first?.heard.slice(2)).toEqual([{ kind: "ask", door: "draw", request: "2" }]);
    first?.listener.heard({ kind: "answer", answer: "two" });
    expect(await Promise.all(answers)).toEqual(["one", "two"]);
    expect(first?.ended).toBe(false);
  });

  it("lets a program of Node end while nothing is asked", async () => {
    const { queue, threads } = await opened();
    expect(threads[0]?.holds).toBe(false);
    const answer = queue.ask("solve", "1");
    expect(threads[0]?.holds).toBe(true);
    threads[0]?.listener.heard({ kind: "answer", answer: "one" });
    expect(threads[0]?.holds).toBe(false);
    await answer;
  });

  it("starts another worker after a fault, and asks it what was waiting", async () => {
    const { queue, threads } = await opened();
    const faulty = queue.ask("solve", "1").catch(messageOf);
    const waiting = queue.ask("solve", "2");
    threads[0]?.listener.heard({ kind: "fault", message: "unreachable" });
    expect(await faulty).toBe("unreachable");
    expect(threads[0]?.ended).toBe(true);
    await turn();
    threads[0]?.listener.heard({ kind: "answer", answer: "of the one that ended" });
    threads[1]?.listener.heard(ready);
    expect(threads[1]?.heard.at(-1)).toEqual({ kind: "ask", door: "solve", request: "2" });
    threads[1]?.listener.heard({ kind: "answer", answer: "two" });
    expect(await waiting).toBe("two");
  });

  it("ends the worker of a request that is given up and goes on", async () => {
    const { queue, threads } = await opened();
    const controller = new AbortController();
    const given = queue.ask("solve", "1", controller.signal).catch(messageOf);
    controller.abort(new Error("enough"));
    expect(await given).toBe("enough");
    expect(threads[0]?.ended).toBe(false);
    while (!threads[0]?.ended) await turn();
    expect(threads).toHaveLength(2);
  });
});
