import { spawnSync } from "node:child_process";
import { fileURLToPath } from "node:url";

import { open } from "kelpower/direct";
import { expect, it } from "vitest";

import { difference } from "./difference";
import { RandomRequests, type Asked } from "./random_requests";

const REQUESTS = 3000;
const SEED = 1;
const RELATIVE = 1e-13;

/** The replies of the native library, which KELPLAN_LIBRARY names. */
function nativeReplies(asked: readonly Asked[]): string[] {
  const library = process.env["KELPLAN_LIBRARY"];
  if (!library) throw new Error("KELPLAN_LIBRARY is to be the path of libkelplan.so.");
  const script = fileURLToPath(new URL("native_replies.py", import.meta.url));
  const input = asked.map(({ door, request }) => `${door} ${request}\n`).join("");
  const run = spawnSync("python3", ["-B", script, library], { input, encoding: "utf8", maxBuffer: 2 ** 30 });
  if (run.status !== 0) throw new Error(run.stderr);
  return run.stdout.trimEnd().split("\n");
}

it("tells what differs", () => {
  expect(difference({ a: [1, "x 0.5 y"] }, { a: [1, "x 0.5 y"] }, RELATIVE)).toBeUndefined();
  expect(difference({ a: 1 + 2e-13 }, { a: 1 }, RELATIVE)).toBeDefined();
  expect(difference({ a: 1 + 5e-14 }, { a: 1 }, RELATIVE)).toBeUndefined();
  expect(difference("power 0.8015.", "power 0.8016.", RELATIVE)).toBeUndefined();
  expect(difference("power 0.8015.", "power 0.8017.", RELATIVE)).toBeDefined();
  expect(difference("power 0.8015.", "level 0.8015.", RELATIVE)).toBeDefined();
  expect(difference("64 in each", "65 in each", RELATIVE)).toBeDefined();
  expect(difference({ a: 1 }, { a: 1, b: 2 }, RELATIVE)).toBeDefined();
  const densities = (height: number) => ({ densities: { with: [0.4, height] } });
  expect(difference(densities(0.1), densities(0.1 + 1e-12), RELATIVE)).toBeUndefined();
  expect(difference(densities(0.1), densities(0.1 + 1e-10), RELATIVE)).toBeDefined();
  expect(difference({ a: null }, { a: 0 }, RELATIVE)).toBeDefined();
});

it("gives the native library's replies", async () => {
  const kel = await open();
  const requests = new RandomRequests(kel.describe(), SEED);
  const asked = Array.from({ length: REQUESTS }, () => requests.next());
  const native = nativeReplies(asked);
  const ours = asked.map(({ door, request }) => kel.ask(door, request));
  expect(native).toHaveLength(REQUESTS);
  const answered = ours.filter((reply) => !("error" in (JSON.parse(reply) as object)));
  expect(answered.length).toBeGreaterThan(REQUESTS / 2);
  const differences = asked.map(({ door, request }, i) => {
    const found = difference(JSON.parse(native[i] as string), JSON.parse(ours[i] as string), RELATIVE);
    return found ? `${door} ${request}\n  ${found.slice(0, 400)}` : undefined;
  });
  expect(differences.filter((found) => found)).toEqual([]);
}, 300_000);
