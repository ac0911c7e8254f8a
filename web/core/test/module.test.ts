import { execFileSync } from "node:child_process";
import { fileURLToPath } from "node:url";

import { afterEach, beforeAll, describe, expect, it, vi } from "vitest";

import { compiledModule } from "../dist/compile.js";
import description from "../dist/description.js";
import { openDoors, type Doors } from "../dist/doors.js";

let doors: Doors;
let memory: WebAssembly.Memory;
beforeAll(async () => {
  const instantiate = WebAssembly.instantiate as (
    module: WebAssembly.Module,
    imports: WebAssembly.Imports,
  ) => Promise<WebAssembly.Instance>;
  const spy = vi.spyOn(WebAssembly, "instantiate").mockImplementation((async (
    module: WebAssembly.Module,
    imports: WebAssembly.Imports,
  ) => {
    const instance = await instantiate(module, imports);
    memory = Object.values(instance.exports).find((each) => each instanceof WebAssembly.Memory) as WebAssembly.Memory;
    return instance;
  }) as unknown as typeof WebAssembly.instantiate);
  doors = await openDoors(await compiledModule());
  spy.mockRestore();
});
afterEach(() => vi.restoreAllMocks());

const kindOf = (reply: string) => (JSON.parse(reply) as { error?: { kind: string } }).error?.kind;

describe("the module", () => {
  it("keeps nothing of a request", () => {
    const ask = () => {
      doors.ask(
        "solve",
        '{"test":"anova","inputs":{"means":[1,2,3],"sd":2,"power":0.9},"explain":true,"densities":true}',
      );
      doors.ask("solve", '{"test":"anova","inputs":{"means":[1,2,3],"sd":-2,"power":0.9}}');
      doors.ask("draw", '{"test":"anova","inputs":{"means":[1,2,3],"sd":2,"n":20},"chart":"n"}');
    };
    for (let i = 0; i < 10; i++) ask();
    const size = memory.buffer.byteLength;
    for (let i = 0; i < 300; i++) ask();
    expect(memory.buffer.byteLength).toBe(size);
  });

  it("is described as it describes itself", () => {
    expect(description).toBe(doors.describe());
  });

  it("answers any text", () => {
    for (const text of [
      "",
      "{",
      "null",
      "\u{1f41f}",
      "[".repeat(1e5),
      '{"test":'.repeat(1e4),
      `{"a":"${"x".repeat(1e6)}"}`,
    ]) {
      expect(kindOf(doors.ask("solve", text))).toBe("request");
    }
    expect(kindOf(doors.ask("solve", `{"test":"mean","inputs":{"sd":[${"1,".repeat(1.2e7)}1]}}`))).toBe("request");
    expect(kindOf(doors.ask("solve", '{"test":"mean","inputs":{"effect-d":0.5,"n":20}}'))).toBeUndefined();
  });
});

it("has types that are those of the schemas", () => {
  execFileSync(process.execPath, [fileURLToPath(new URL("../types.mjs", import.meta.url)), "--check"], {
    stdio: "pipe",
  });
});
