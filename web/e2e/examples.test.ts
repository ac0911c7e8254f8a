import type { Browser } from "playwright-core";
import { afterAll, beforeAll, expect, it } from "vitest";

import { byTestId, goTo, startBrowser, visit } from "./browser";
import { fromDisk, fromServer, type Place } from "./places";
import { examples, stateOf, type Shown } from "./states";

let browser: Browser;
let places: Place[];
let shown: Shown[];
beforeAll(async () => {
  browser = await startBrowser();
  places = [fromDisk(), await fromServer()];
  shown = await examples();
});
afterAll(async () => {
  await browser.close();
  places.forEach((place) => place.close());
});

it("answers each example of each test with the program's sentence", async () => {
  expect(shown.length).toBeGreaterThan(0);
  for (const place of places) {
    const { page, faults, close } = await visit(browser, place);
    for (const { test, inputs, sentence } of shown) {
      await goTo(page, stateOf(test, inputs));
      const found = byTestId(page, "sentence").filter({ hasText: sentence });
      await found.waitFor({ timeout: 30_000 }).catch(() => {});
      expect(await byTestId(page, "sentence").textContent(), `${test} from ${place.name}`).toBe(sentence);
    }
    expect(faults, place.name).toEqual([]);
    await close();
  }
}, 600_000);

it("reads the program's own words in the address", async () => {
  const { page, faults, close } = await visit(browser, places[0] as Place);
  for (const { arguments: words, sentence } of shown) {
    await goTo(page, `#${words}`);
    await byTestId(page, "sentence").filter({ hasText: sentence }).waitFor({ timeout: 30_000 });
  }
  expect(faults).toEqual([]);
  await close();
}, 600_000);
