import type { Browser, Page } from "playwright-core";
import { afterAll, beforeAll, describe, expect, it } from "vitest";

import { findings } from "./axe";
import { byTestId, goTo, startBrowser, visit } from "./browser";
import { fromDisk } from "./places";
import { examples, stateOf } from "./states";

const disk = fromDisk();
let browser: Browser;
beforeAll(async () => {
  browser = await startBrowser();
});
afterAll(() => browser.close());

const pictures = (page: Page) => byTestId(page, "pictures");
/** Waits until the pictures are of the design that is answered. */
const drawn = (page: Page) => pictures(page).locator(".pictures[aria-busy=false] .pictures-drawing > svg").waitFor();
const kindsOf = (page: Page) => pictures(page).locator(".pictures-kinds label").allTextContents();

async function choose(page: Page, kind: string): Promise<void> {
  await pictures(page).locator(".pictures-kinds label", { hasText: kind }).click();
  await pictures(page).locator(".pictures-kinds .is-chosen", { hasText: kind }).waitFor();
}

/** Texts of the picture that lie over each other, or outside of it. */
function collisions(page: Page): Promise<string[]> {
  return pictures(page)
    .locator(".pictures-drawing > svg")
    .evaluate((svg) => {
      const around = svg.getBoundingClientRect();
      // The halo of a text does not count, so its box is that of its letters.
      const texts = [...svg.querySelectorAll("text")]
        .filter((text) => text.textContent?.trim())
        .map((text) => ({ text: text.textContent ?? "", box: text.getBoundingClientRect() }));
      const found: string[] = [];
      texts.forEach(({ text, box }, i) => {
        if (box.left < around.left - 1 || box.right > around.right + 1 || box.bottom > around.bottom + 1) {
          found.push(`"${text}" is cut off`);
        }
        for (const other of texts.slice(i + 1)) {
          const across = Math.min(box.right, other.box.right) - Math.max(box.left, other.box.left);
          const up = Math.min(box.bottom, other.box.bottom) - Math.max(box.top, other.box.top);
          if (across > 1 && up > 4) found.push(`"${text}" lies over "${other.text}"`);
        }
      });
      return found;
    });
}

describe.each([360, 1280])("pictures %i pixels wide", (width) => {
  it("have all their labels apart, of every kind of every example", async () => {
    const { page, faults, close } = await visit(browser, disk, "", { viewport: { width, height: 900 } });
    let seen = 0;
    for (const { test, inputs, sentence } of await examples()) {
      const state = stateOf(test, inputs);
      await goTo(page, state);
      await byTestId(page, "sentence").filter({ hasText: sentence }).waitFor({ timeout: 30_000 });
      await drawn(page);
      for (const kind of await kindsOf(page)) {
        await choose(page, kind);
        expect(await collisions(page), `${state} ${kind}`).toEqual([]);
        ++seen;
      }
    }
    expect(seen).toBeGreaterThan(100);
    expect(faults).toEqual([]);
    await close();
  }, 600_000);
});

describe.each(["light", "dark"] as const)("pictures in the %s", (colorScheme) => {
  it("have no findings of axe, of every kind", async () => {
    const states = [
      "#proportion?proportion=0.7&null=0.5&n=30&exact",
      "#two-means?sd=10&half-width=2",
      "#anova?means=10,12,15&sd=6&power=0.9",
    ];
    const seen = new Set<string>();
    for (const state of states) {
      const { page, faults, close } = await visit(browser, disk, state, { colorScheme });
      await drawn(page);
      for (const kind of await kindsOf(page)) {
        await choose(page, kind);
        seen.add(kind);
        expect(await findings(page), `${state} ${kind}`).toEqual([]);
      }
      expect(faults).toEqual([]);
      await close();
    }
    expect(seen.size).toBe(5);
  });
});

describe("a design that is moved in a picture", () => {
  const scales = (page: Page) => pictures(page).locator(".pictures-drawing svg svg text").allTextContents();
  const handle = (page: Page) => pictures(page).getByRole("slider");

  it("stays where it was left, and the scales stay", async () => {
    const state = "#two-means?effect-d=0.5&power=0.8";
    const { page, faults, close } = await visit(browser, disk, state, { viewport: { width: 1280, height: 1200 } });
    await handle(page).waitFor();
    const before = await scales(page);
    await handle(page).scrollIntoViewIfNeeded();
    const box = (await handle(page).boundingBox())!;
    const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
    await page.mouse.move(x, y);
    await page.mouse.down();
    await page.mouse.move(x + 60, y - 20, { steps: 8 });
    const left = await handle(page).getAttribute("aria-valuetext");
    await page.mouse.up();
    await page.waitForFunction(() => !location.hash.endsWith("power=0.8"));
    await page.waitForTimeout(2000);
    expect(await handle(page).getAttribute("aria-valuetext")).toBe(left);
    expect(await scales(page)).toEqual(before);
    // The question is still how many are needed, and the answer is the size at that place.
    expect(await byTestId(page, "sentence").textContent()).toContain(`needs ${/= (\d+)/.exec(left!)![1]} observations`);
    expect(faults).toEqual([]);
    await close();
  });

  it("follows a finger", async () => {
    const { page, faults, close } = await visit(browser, disk, "#anova?means=10,12,15&sd=6&n=20", {
      viewport: { width: 360, height: 740 },
      hasTouch: true,
    });
    await handle(page).waitFor();
    await handle(page).scrollIntoViewIfNeeded();
    const box = (await handle(page).boundingBox())!;
    const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
    const session = await page.context().newCDPSession(page);
    const touch = (type: "touchStart" | "touchMove" | "touchEnd", at: number) =>
      session.send("Input.dispatchTouchEvent", { type, touchPoints: type === "touchEnd" ? [] : [{ x: at, y }] });
    const scrolled = await page.evaluate(() => scrollY);
    await touch("touchStart", x);
    for (let i = 1; i <= 10; ++i) await touch("touchMove", x + 5 * i);
    await touch("touchEnd", x + 50);
    await page.waitForFunction(() => Number(/n=(\d+)/.exec(location.hash)?.[1] ?? 20) > 25);
    expect(await page.evaluate(() => scrollY)).toBe(scrolled);
    expect(faults).toEqual([]);
    await close();
  });

  it("moves the distributions by their slider", async () => {
    const { page, faults, close } = await visit(browser, disk, "#anova?means=10,12,15&sd=6&n=20");
    await drawn(page);
    await choose(page, "What power is");
    const slider = pictures(page).getByRole("slider");
    await slider.focus();
    for (let i = 0; i < 5; ++i) await page.keyboard.press("ArrowRight");
    await pictures(page).locator("figcaption", { hasText: "in about 74 of 100" }).waitFor();
    expect(await byTestId(page, "sentence").textContent()).toContain("25 observations in each of 3 groups");
    expect(faults).toEqual([]);
    await close();
  });
});
