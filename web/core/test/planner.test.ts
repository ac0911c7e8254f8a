import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";

import { load, type Kelpower } from "kelpower";
import { open } from "kelpower/direct";
import { afterAll, beforeAll, describe, expect, it } from "vitest";

import { replyChecks } from "./schemas";

const design = { test: "two-means", inputs: { "effect-d": 0.5, power: 0.8 } } as const;
/** Ten seconds of searching. */
const long = {
  test: "two-proportions",
  inputs: { proportion1: 0.3, proportion2: 0.34, power: 0.9, method: "conditional" },
} as const;

let kel: Kelpower;
beforeAll(async () => {
  kel = await load();
});
afterAll(() => kel.close());

const wait = (milliseconds: number) => new Promise((done) => setTimeout(done, milliseconds));
const nameOf = (error: unknown) => (error as Error).name;
const sentenceOf = async (request: Parameters<Kelpower["solve"]>[0], signal?: AbortSignal) => {
  const answer = await kel.solve(request, { signal });
  return "error" in answer ? answer.error.message : answer.sentence;
};

describe("the planner in a worker", () => {
  it("is the release that the repository tells", () => {
    const release = readFileSync(new URL("../../../VERSION", import.meta.url), "utf8").trim();
    const { version } = JSON.parse(readFileSync(new URL("../package.json", import.meta.url), "utf8")) as {
      version: string;
    };
    expect([kel.version, version]).toEqual([release, release]);
  });

  it("answers each example of each test with the sentence of its description", async () => {
    const { tests } = kel.describe();
    expect(tests.length).toBeGreaterThan(0);
    for (const test of tests) {
      expect(test.examples.length).toBeGreaterThan(0);
      for (const { inputs, sentence } of test.examples) {
        expect(await sentenceOf({ test: test.name, inputs })).toBe(sentence);
      }
    }
  });

  it("converts the examples of effect sizes", async () => {
    const { examples } = kel.describe().effects;
    expect(examples.length).toBeGreaterThan(0);
    for (const { inputs, sentence } of examples) {
      const reply = await kel.convert({ inputs });
      expect("error" in reply ? reply.error : reply.sentence).toBe(sentence);
    }
  });

  it("replies as the schemas of the C interface say", async () => {
    const checks = replyChecks();
    checks.description(kel.describe());
    for (const test of kel.describe().tests) {
      for (const { inputs } of test.examples) {
        checks.answer(
          await kel.solve({ test: test.name, inputs, explain: true, densities: true, calls: true, text: true }),
        );
      }
    }
    checks.table(await kel.tabulate({ test: "two-means", inputs: { "effect-d": [0.2, 0.5, 0.8], power: [0.8, 0.9] } }));
    checks.chart(await kel.draw({ ...design, chart: "n" }));
    checks.chart(await kel.draw({ test: "two-means", inputs: { "effect-d": 0.5, n: 64 }, chart: "n-effect-d" }));
    checks.conversion(await kel.convert({ inputs: { t: 2.3, n: 20 }, explain: true }));
    checks.error(await kel.solve({ ...design, inputs: { power: 90 } }));
  });

  it("answers what is wrong with the planner's error", async () => {
    const reply = await kel.solve({ test: "two-means", inputs: { "effect-d": 0.5, power: 90 } });
    expect("error" in reply && reply.error).toMatchObject({
      kind: "input",
      code: "not-allowed",
      parameter: "power",
      value: 90,
    });
    const unknown = await kel.solve({ test: "no such test \u0000 \u{1f41f}" });
    expect("error" in unknown && unknown.error.kind).toBe("request");
  });

  it("spells names as it is asked to", async () => {
    const reply = await kel.solve({ ...design, names: "underscore" });
    expect("error" in reply || reply.inputs).toMatchObject({ effect_d: 0.5, target_power: 0.8 });
  });
});

describe("a request that is given up", () => {
  it("ends when it is long, and what was asked after it is answered", async () => {
    const controller = new AbortController();
    const started = performance.now();
    const given = sentenceOf(long, controller.signal).catch(nameOf);
    const waiting = sentenceOf(design);
    await wait(100);
    controller.abort();
    expect(await given).toBe("AbortError");
    expect(await waiting).toContain("needs 64 observations");
    expect(performance.now() - started).toBeLessThan(5_000); // The search alone would take twice that.
  });

  it("is waited for when it is quick", async () => {
    const controller = new AbortController();
    const given = sentenceOf(design, controller.signal).catch(nameOf);
    const next = sentenceOf({ ...design, inputs: { "effect-d": 0.8, power: 0.8 } });
    controller.abort(new Error("another wish"));
    expect(await given).toBe("Error");
    expect(await next).toContain("needs 26 observations");
  });

  it("is not asked when it is given up before its turn", async () => {
    const controller = new AbortController();
    const first = sentenceOf(design);
    const second = sentenceOf(long, controller.signal).catch(nameOf);
    const third = sentenceOf(design);
    controller.abort();
    expect(await second).toBe("AbortError");
    expect(await first).toBe(await third);
    expect(await sentenceOf(design, AbortSignal.abort()).catch(nameOf)).toBe("AbortError");
  });

  it("may be one that a newer request of its kind replaces", async () => {
    const ask = (power: number) =>
      sentenceOf({ test: "two-means", inputs: { "effect-d": 0.5, power } }, kel.latest("answer")).catch(nameOf);
    const other = sentenceOf(design, kel.latest("picture"));
    const all = await Promise.all([0.5, 0.6, 0.7, 0.9].map(ask));
    expect(all.slice(0, 3)).toEqual(["AbortError", "AbortError", "AbortError"]);
    expect(all[3]).toContain("needs 86 observations");
    expect(await other).toContain("needs 64 observations");
  });
});

describe("a planner that is closed", () => {
  it("rejects what is asked of it", async () => {
    const closed = await load();
    const running = closed.solve(long).catch((error: Error) => error.message);
    const waiting = closed.solve(design).catch((error: Error) => error.message);
    closed.close();
    const after = closed.solve(design).catch((error: Error) => error.message);
    expect(new Set(await Promise.all([running, waiting, after]))).toEqual(new Set(["This planner is closed."]));
  });

  it("need not be closed for a program to end", () => {
    const script = `
      import { load } from "kelpower";
      const kel = await load();
      const { results } = await kel.solve(${JSON.stringify(design)});
      console.log(results.total);`;
    const options = { cwd: new URL("..", import.meta.url), timeout: 30_000, encoding: "utf8" } as const;
    expect(execFileSync(process.execPath, ["--input-type=module", "--eval", script], options)).toBe("128\n");
  });
});

describe("the planner in the thread that calls", () => {
  it("replies as the worker does", async () => {
    const direct = await open();
    expect(direct.version).toBe(kel.version);
    expect(direct.describe()).toEqual(kel.describe());
    expect(direct.solve(design)).toEqual(await kel.solve(design));
    expect(direct.tabulate(design)).toEqual(await kel.tabulate(design));
    expect(direct.convert({ inputs: { t: 2.3, n: 20 } })).toEqual(await kel.convert({ inputs: { t: 2.3, n: 20 } }));
    const chart = { ...design, chart: "effect-d" };
    expect(direct.draw(chart)).toEqual(await kel.draw(chart));
  });
});
