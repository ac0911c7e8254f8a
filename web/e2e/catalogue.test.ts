import { afterAll, beforeAll, expect, it } from "vitest";
import type { Browser } from "playwright-core";

import { answered, byTestId, startBrowser } from "./browser";
import { fromDisk } from "./places";

let browser: Browser;
beforeAll(async () => {
  browser = await startBrowser();
});
afterAll(() => browser.close());

/** Puts a test into the catalogue that the page is told, with an input and limits of its own; the planner knows it as another. */
function addTest(): void {
  const Native = window.Worker;
  type Named = {
    name: string;
    title: string;
    parameters: { name: string; label: string; meaning: string; limits: object }[];
  };
  const described = (text: string) => {
    const description = JSON.parse(text) as { tests: Named[] };
    const known = description.tests.find(({ name }) => name === "mean") as Named;
    const added = JSON.parse(JSON.stringify(known).replaceAll("effect-d", "effect-of-added")) as Named;
    Object.assign(added, { name: "added-test", title: "Test of an added catalogue entry" });
    const input = added.parameters.find(({ name }) => name === "effect-of-added");
    Object.assign(input ?? {}, { label: "added effect", meaning: "what was added" });
    return JSON.stringify({ ...description, tests: [...description.tests, added] });
  };
  window.Worker = class extends Native {
    override set onmessage(listen: (event: MessageEvent) => void) {
      super.onmessage = (event: MessageEvent<{ kind: string; description: string }>) => {
        const { data } = event;
        listen(
          data.kind === "ready"
            ? ({ data: { ...data, description: described(data.description) } } as MessageEvent)
            : event,
        );
      };
    }
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
