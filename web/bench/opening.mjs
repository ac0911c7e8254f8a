// Prints the seconds from opening the page's file in Chromium to its answer, a line for each of COUNT openings.
// Usage: opening.mjs PAGE COUNT
import { existsSync } from "node:fs";
import { resolve } from "node:path";
import { pathToFileURL } from "node:url";

import { chromium } from "playwright-core";

const [, , file, count] = process.argv;
const address = `${pathToFileURL(resolve(file)).href}#two-means?effect-d=0.5&power=0.8`;
const executablePath = ["/usr/bin/chromium-headless-shell", "/usr/bin/chromium"].find((path) => existsSync(path));

/** Notes when the sentence is first in the page, in milliseconds since the page began to open. */
function watch() {
  const seen = new Promise((resolve) => {
    const look = () => document.querySelector('[data-testid="sentence"]') && resolve(performance.now());
    new MutationObserver(look).observe(document, { childList: true, subtree: true });
  });
  window.answeredAt = seen;
}

const browser = await chromium.launch({ executablePath, args: ["--no-sandbox"] });
for (let i = 0; i < Number(count); i++) {
  const context = await browser.newContext({ viewport: { width: 1280, height: 900 } });
  const page = await context.newPage();
  await page.addInitScript(watch);
  await page.goto(address);
  console.log((await page.evaluate(() => window.answeredAt)) / 1000);
  await context.close();
}
await browser.close();
