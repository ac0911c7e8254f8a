import type { Browser, Page } from "playwright-core";
import { afterAll, beforeAll, describe, expect, it } from "vitest";

import { findings } from "./axe";
import { answered, byTestId, goTo, startBrowser, visit } from "./browser";
import { fromDisk } from "./places";
import { examples, stateOf, type Shown } from "./states";

const place = fromDisk();
const LOOKS = [
  { name: "wide", viewport: { width: 1280, height: 900 }, colorScheme: "light" },
  { name: "wide and dark", viewport: { width: 1280, height: 900 }, colorScheme: "dark" },
  { name: "narrow", viewport: { width: 360, height: 740 }, colorScheme: "light" },
  { name: "narrow and dark", viewport: { width: 360, height: 740 }, colorScheme: "dark" },
] as const;

const ANSWERED = "#two-means?effect-d=0.5&power=0.8";
const STATES = [
  { name: "the list of tests", state: "", ready: (page: Page) => byTestId(page, "search").waitFor() },
  { name: "empty", state: "#two-means", ready: (page: Page) => answered(page, "empty") },
  {
    name: "answered",
    state: ANSWERED,
    ready: (page: Page) => byTestId(page, "pictures").locator("svg").first().waitFor(),
  },
  {
    name: "a table",
    state: "#contingency?table=0.05,0.1,0.1,0.05,0.05,0.15,0.1,0.05,0.1,0.1,0.05,0.1&rows=3&power=0.8",
    ready: (page: Page) => byTestId(page, "pictures").locator("svg").first().waitFor(),
  },
  {
    name: "cells of three factors",
    state: "#factorial?levels=2,2,3&term=1,2&means=&sd=4&power=0.8",
    ready: (page: Page) => answered(page, "empty"),
  },
  {
    name: "a margin",
    state: "#two-means?mean-difference=0&sd=6&margin=-2&non-inferiority&power=0.9",
    ready: (page: Page) => byTestId(page, "pictures").locator("svg").first().waitFor(),
  },
  { name: "error", state: "#two-means?effect-d=0.5&power=80", ready: (page: Page) => answered(page, "error") },
];

let browser: Browser;
let shown: Shown[];
beforeAll(async () => {
  browser = await startBrowser();
  shown = await examples();
});
afterAll(() => browser.close());

/** What sticks out of the page, or has text that is cut off. */
function overflowing(page: Page): Promise<string[]> {
  return page.evaluate(() => {
    const width = document.documentElement.clientWidth;
    const scrolls = (element: Element): boolean =>
      element !== document.documentElement &&
      (["auto", "scroll", "hidden"].includes(getComputedStyle(element).overflowX) ||
        (element.parentElement !== null && scrolls(element.parentElement)));
    const out = [...document.body.querySelectorAll("*")].filter((element) => {
      const box = element.getBoundingClientRect();
      return box.width > 1 && (box.right > width + 0.5 || box.left < -0.5) && !scrolls(element);
    });
    const found = out.map(
      (element) => `${element.tagName} ${element.className.toString()} ${element.textContent?.slice(0, 40)}`,
    );
    return document.documentElement.scrollWidth > width ? ["the page scrolls sideways", ...found] : found;
  });
}

describe.each(LOOKS)("the page, $name", ({ viewport, colorScheme }) => {
  it.each(STATES)("has no findings of axe and nothing cut off: $name", async ({ state, ready }) => {
    const { page, faults, close } = await visit(browser, place, state, {
      viewport,
      colorScheme,
      reducedMotion: "reduce",
    });
    await ready(page);
    expect(await findings(page)).toEqual([]);
    expect(await overflowing(page)).toEqual([]);
    await page.evaluate(() => document.querySelectorAll("details").forEach((each) => (each.open = true)));
    expect(await findings(page)).toEqual([]);
    expect(await overflowing(page)).toEqual([]);
    expect(faults).toEqual([]);
    await close();
  });
});

it("fits 360 pixels with each example of each test", async () => {
  const { page, faults, close } = await visit(browser, place, "", { viewport: { width: 360, height: 740 } });
  for (const { test, inputs, sentence } of shown) {
    await goTo(page, stateOf(test, inputs));
    await byTestId(page, "sentence").filter({ hasText: sentence }).waitFor({ timeout: 30_000 });
    expect(await overflowing(page), stateOf(test, inputs)).toEqual([]);
  }
  expect(faults).toEqual([]);
  await close();
}, 300_000);

it("is dark where dark is wanted", async () => {
  const brightness = async (colorScheme: "light" | "dark") => {
    const { page, close } = await visit(browser, place, "", { colorScheme });
    await byTestId(page, "search").waitFor();
    const colour = await page.evaluate(() => getComputedStyle(document.documentElement).backgroundColor);
    await close();
    const [red = 0, green = 0, blue = 0] = (colour.match(/[\d.]+/g) ?? []).map(Number);
    return (red + green + blue) / 3;
  };
  expect(await brightness("light")).toBeGreaterThan(200);
  expect(await brightness("dark")).toBeLessThan(60);
});

it("moves nothing where no motion is wanted", async () => {
  const { page, close } = await visit(browser, place, ANSWERED, { reducedMotion: "reduce" });
  await byTestId(page, "pictures").locator("svg").first().waitFor();
  await byTestId(page, "input-effect-d").fill("0.6");
  const moving = await page.evaluate(async () => {
    const found: string[] = [];
    for (let i = 0; i < 20; i++) {
      const running = document.getAnimations().filter((each) => Number(each.effect?.getComputedTiming().duration) > 10);
      found.push(...running.map((each) => String((each as CSSTransition).transitionProperty)));
      await new Promise((done) => setTimeout(done, 20));
    }
    return found;
  });
  expect(moving).toEqual([]);
  await close();
});

it("can be used by the keyboard alone", async () => {
  const { page, faults, close } = await visit(browser, place);
  await byTestId(page, "search").waitFor();
  const tabTo = async (id: string) => {
    for (let i = 0; i < 80; i++) {
      await page.keyboard.press("Tab");
      const now = await page.evaluate(() => {
        const element = document.activeElement;
        const shows = [element, element?.closest("label")].some(
          (each) => each && getComputedStyle(each).outlineStyle !== "none",
        );
        return { id: element?.getAttribute("data-testid") ?? element?.getAttribute("role") ?? "", shows };
      });
      if (now.id !== id) continue;
      expect(now.shows, `${id} shows its focus`).toBe(true);
      return;
    }
    throw new Error(`The Tab key does not reach ${id}.`);
  };
  await tabTo("search");
  await page.keyboard.type("two groups");
  await tabTo("test-two-means");
  await page.keyboard.press("Enter");
  await byTestId(page, "test-title").waitFor();
  await tabTo("form-means+sd");
  await page.keyboard.press("ArrowDown");
  await page.keyboard.press("ArrowDown");
  await tabTo("input-effect-d");
  await page.keyboard.type("0.5");
  await tabTo("input-power");
  await page.keyboard.press("Control+A");
  await page.keyboard.type("0.8");
  expect(await answered(page)).toContain("needs 64 observations in each of 2 groups");
  await byTestId(page, "pictures").locator("svg").first().waitFor();
  await tabTo("slider");
  await page.keyboard.press("ArrowRight");
  await byTestId(page, "sentence").filter({ hasNotText: "needs 64" }).waitFor();
  expect(faults).toEqual([]);
  await close();
});
