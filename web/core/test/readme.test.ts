import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";

import { expect, it } from "vitest";

it("prints in the example of README.md what it says", () => {
  const text = readFileSync(new URL("../README.md", import.meta.url), "utf8");
  const [, example, output] = /```js\n([\s\S]*?)```\n\nIt prints\n\n```\n([\s\S]*?)```/.exec(text) ?? [];
  expect(example).toBeTruthy();
  const options = { cwd: new URL("..", import.meta.url), encoding: "utf8" } as const;
  expect(execFileSync(process.execPath, ["--input-type=module", "--eval", example ?? ""], options)).toBe(output);
});
