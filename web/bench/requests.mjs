// Times requests to the planner as WebAssembly: of each line of the input, "name<tab>door<tab>request", it prints the
// name, the seconds of a call in the thread of the planner, those of a call from another thread with its reply read, and
// the reply, separated by tabs.
import { readFileSync } from "node:fs";

import { load } from "kelpower";
import { open } from "kelpower/direct";

// Short passes, of which some fall between the turns of other programs. The first ones give the compiler its time, which
// on a busy machine is long.
const SECONDS_OF_PASS = 0.005;
const SECONDS_OF_ALL = 1.5;

async function secondsOfCalls(call, count) {
  const start = performance.now();
  for (let i = 0; i < count; i++) {
    const reply = call();
    if (reply instanceof Promise) await reply;
  }
  return (performance.now() - start) / 1000;
}

async function secondsOfCall(call) {
  let count = 1;
  while ((await secondsOfCalls(call, count)) < SECONDS_OF_PASS) count *= 2;
  let least = Infinity;
  const end = performance.now() + 1000 * SECONDS_OF_ALL;
  while (performance.now() < end) least = Math.min(least, await secondsOfCalls(call, count));
  return least / count;
}

const direct = await open();
const worker = await load();
for (const line of readFileSync(0, "utf8").trimEnd().split("\n")) {
  const [name, door, request] = line.split("\t");
  const parsed = JSON.parse(request);
  const inThread = await secondsOfCall(() => direct.ask(door, request));
  const fromOther = await secondsOfCall(() => worker[door](parsed));
  console.log([name, inThread, fromOther, direct.ask(door, request)].join("\t"));
}
worker.close();
