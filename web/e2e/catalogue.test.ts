import { afterAll, beforeAll, expect, it } from "vitest";
import type { Browser } from "playwright-core";

import { answered, byTestId, startBrowser } from "./browser";
import { fromDisk } from "./places";

let browser: Browser;
beforeAll(async () => {
  browser = await startBrowser();
});
afterAll(() => browser.close());

/** Puts a test into the catalogue that the page reads, with names of its own. The planner knows it by others. */
function addTest(): void {
  type Named = { name: string; title: string; parameters: { name: string; label: string }[] };
  const parse = JSON.parse.bind(JSON) as typeof JSON.parse;
  const addTo = (tests: Named[]) => {
    const known = tests.find(({ name }) => name === "mean");
    const added = parse(JSON.stringify(known).replaceAll("effect-d", "effect-of-added")) as Named;
    tests.push(Object.assign(added, { name: "added-test", title: "Test of an added catalogue entry" }));
  };
  JSON.parse = (text: string) => {
    const value = parse(text) as { tests?: Named[]; effects?: object };
    if (value.tests && value.effects) addTo(value.tests);
    return value;
  };
  const Native = window.Worker;
  window.Worker = class extends Native {
    override postMessage(message: { kind: string; request: string }): void {
      const asKnown = (text: string) => text.replaceAll("added-test", "mean").replaceAll("effect-of-added", "effect-d");
      super.postMessage(message.kind === "ask" ? { ...message, request: asKnown(message.request) } : message);
    }
  };
}

it("shows a test that is added to the catalogue, and asks the planner for it", async () => {
  const context = await browser.newContext();
  const page = await context.newPage();
  await page.addInitScript(addTest);
  await page.goto(fromDisk().address);
  await byTestId(page, "search").fill("added catalogue entry");
  await byTestId(page, "test-added-test").click();
  expect(await byTestId(page, "test-title").textContent()).toBe("Test of an added catalogue entry");
  await byTestId(page, "form-effect-of-added").check();
  await byTestId(page, "input-effect-of-added").fill("0.5");
  await byTestId(page, "input-power").fill("0.8");
  expect(await answered(page)).toContain("an effect size d of 0.5 with a power of 0.8");
  await page.waitForFunction(() => location.hash.startsWith("#added-test?effect-of-added=0.5"));
  await context.close();
});
