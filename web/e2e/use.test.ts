import { readFileSync } from "node:fs";

import { open } from "kelpower/direct";
import type { Browser, Download, Page } from "playwright-core";
import { afterAll, beforeAll, describe, expect, it } from "vitest";

import { answered, byTestId, goTo, startBrowser, visit } from "./browser";
import { fromDisk, fromServer, type Place } from "./places";

const STUDY = "#two-means?effect-d=0.5&power=0.8";
/** A search of some ten seconds. */
const LONG = "#two-proportions?proportion1=0.3&proportion2=0.34&power=0.9&method=conditional";

let browser: Browser;
let disk: Place;
let server: Place;
beforeAll(async () => {
  browser = await startBrowser();
  disk = fromDisk();
  server = await fromServer();
});
afterAll(async () => {
  await browser.close();
  server.close();
});

const sentenceWith = (page: Page, text: string) => byTestId(page, "sentence").filter({ hasText: text }).waitFor();

describe("typing", () => {
  it("plans the study of three groups", async () => {
    const { page, faults, close } = await visit(browser, disk);
    await byTestId(page, "search").fill("three groups");
    await byTestId(page, "test-anova").click();
    await byTestId(page, "question-sample-size").check();
    await byTestId(page, "form-means+sd").check();
    for (const [i, mean] of ["10", "12", "15"].entries()) {
      if ((await byTestId(page, `input-means-${i + 1}`).count()) === 0) await byTestId(page, "add-group").click();
      await byTestId(page, `input-means-${i + 1}`).fill(mean);
    }
    await byTestId(page, "input-sd").fill("6");
    await byTestId(page, "input-power").fill("0.9");
    const kel = await open();
    const reply = kel.solve({ test: "anova", inputs: { means: [10, 12, 15], sd: 6, power: 0.9 } });
    await sentenceWith(page, "error" in reply ? "" : reply.sentence);
    expect(await byTestId(page, "number").textContent()).toBe("111");
    expect(faults).toEqual([]);
    await close();
  });

  it("takes a table row by row, typed and pasted", async () => {
    const { page, faults, close } = await visit(browser, disk, "#contingency");
    await byTestId(page, "form-table+rows").check();
    const typed = ["0.05", "0.35", "0.1", "0.075", "0.25", "0.175"];
    await byTestId(page, "add-column").click();
    for (const [i, text] of typed.entries()) await byTestId(page, `input-table-${i + 1}`).fill(text);
    const kel = await open();
    const sentence = (table: number[], rows: number) => {
      const reply = kel.solve({ test: "contingency", inputs: { table, rows, power: 0.8 } });
      return "error" in reply ? "no answer" : reply.sentence;
    };
    await sentenceWith(page, sentence(typed.map(Number), 2));
    await byTestId(page, "input-table-1").evaluate((input) => {
      const data = new DataTransfer();
      data.setData("text", "10\t20\n20\t20\n5\t25\n");
      input.dispatchEvent(new ClipboardEvent("paste", { clipboardData: data, bubbles: true, cancelable: true }));
    });
    await sentenceWith(page, sentence([10, 20, 20, 20, 5, 25], 3));
    await byTestId(page, "remove-row").click();
    await sentenceWith(page, sentence([10, 20, 20, 20], 2));
    await page.waitForFunction(() => location.hash.includes("table=10,20,20,20&rows=2"));
    expect(faults).toEqual([]);
    await close();
  });

  it("takes the means of the cells of crossed factors", async () => {
    const { page, faults, close } = await visit(browser, disk, "#factorial?means=&levels=2,2&term=&sd=4&power=0.8");
    await byTestId(page, "input-levels").fill("2,3");
    await byTestId(page, "input-term").fill("1,2");
    const means = [10, 12, 15, 10, 11, 12];
    for (const [i, mean] of means.entries()) await byTestId(page, `input-means-${i + 1}`).fill(String(mean));
    const kel = await open();
    const inputs = { levels: [2, 3], term: [1, 2], means, sd: 4, power: 0.8 };
    const reply = kel.solve({ test: "factorial", inputs });
    await sentenceWith(page, "error" in reply ? "no answer" : reply.sentence);
    expect(await byTestId(page, "input-means-4").getAttribute("aria-label")).toBe("Factor 1: 2, Factor 2: 1");
    expect(faults).toEqual([]);
    await close();
  });

  it("asks first what is to be shown, where a test knows margins", async () => {
    const { page, faults, close } = await visit(browser, disk, "#two-means?mean-difference=0&sd=6&power=0.9");
    await byTestId(page, "aim-non-inferiority").check();
    await byTestId(page, "input-margin").fill("-2");
    await sentenceWith(page, "non-inferiority");
    await byTestId(page, "aim-equivalence").check();
    await byTestId(page, "input-equivalence-1").fill("-2");
    await byTestId(page, "input-equivalence-2").fill("2");
    await sentenceWith(page, "equivalence");
    await page.waitForFunction(() => !location.hash.includes("non-inferiority"));
    expect(faults).toEqual([]);
    await close();
  });

  it("reads decimal commas", async () => {
    const { page, faults, close } = await visit(browser, disk, STUDY);
    await answered(page);
    await byTestId(page, "input-effect-d").fill("0,8");
    await sentenceWith(page, "an effect size d of 0.8");
    expect(faults).toEqual([]);
    await close();
  });

  it("tells at its field what is wrong, and goes on when it is mended", async () => {
    const { page, faults, close } = await visit(browser, disk, STUDY);
    await answered(page);
    await byTestId(page, "input-power").fill("80");
    await byTestId(page, "input-power").blur();
    await answered(page, "error");
    expect(await byTestId(page, "error-power").textContent()).toContain("between 0 and 1");
    expect(await byTestId(page, "input-power").getAttribute("aria-invalid")).toBe("true");
    const described = (await byTestId(page, "input-power").getAttribute("aria-describedby")) ?? "";
    const texts = await Promise.all(described.split(" ").map((id) => page.locator(`[id="${id}"]`).textContent()));
    expect(texts.join(" ")).toContain("between 0 and 1");
    await byTestId(page, "input-power").fill("0.9");
    await sentenceWith(page, "needs 86 observations");
    expect(await byTestId(page, "input-power").getAttribute("aria-invalid")).not.toBe("true");
    await byTestId(page, "input-effect-d").fill("half");
    await byTestId(page, "input-effect-d").blur();
    await byTestId(page, "error-effect-d").waitFor();
    expect(faults).toEqual([]);
    await close();
  });

  it("goes back as the browser does", async () => {
    const { page, close } = await visit(browser, disk);
    await byTestId(page, "test-two-means").click();
    await byTestId(page, "test-title").waitFor();
    await page.goBack();
    await byTestId(page, "search").waitFor();
    await close();
  });
});

describe("a long search", () => {
  it("shows progress, and can be stopped and begun again", async () => {
    const { page, faults, close } = await visit(browser, disk, LONG);
    await byTestId(page, "progress").waitFor();
    await byTestId(page, "stop").click();
    await answered(page, "stopped");
    await byTestId(page, "again").click();
    await byTestId(page, "progress").waitFor();
    expect(faults).toEqual([]);
    await close();
  });

  it("ends when something else is asked", async () => {
    const { page, faults, close } = await visit(browser, disk, LONG);
    await byTestId(page, "progress").waitFor();
    const started = performance.now();
    await goTo(page, STUDY);
    await sentenceWith(page, "needs 64 observations");
    expect(performance.now() - started).toBeLessThan(5_000); // The search alone would take twice that.
    expect(faults).toEqual([]);
    await close();
  });
});

describe("sharing", () => {
  it("keeps the whole state in the address", async () => {
    for (const place of [disk, server]) {
      const first = await visit(browser, place, "#two-means");
      await byTestId(first.page, "form-effect-d").check();
      await byTestId(first.page, "input-effect-d").fill("0.4");
      await byTestId(first.page, "input-power").fill("0.85");
      await byTestId(first.page, "input-one-sided").check();
      await sentenceWith(first.page, "one-sided");
      const sentence = await answered(first.page);
      await first.page.waitForFunction(() => location.hash.includes("one-sided"));
      const hash = new URL(first.page.url()).hash;
      expect(hash).toContain("effect-d=0.4");
      const second = await visit(browser, place, hash);
      expect(await answered(second.page)).toBe(sentence);
      await first.close();
      await second.close();
    }
  });

  it("copies the sentence, the link and the calls", async () => {
    const { page, close } = await visit(browser, server, STUDY, { permissions: ["clipboard-read", "clipboard-write"] });
    const sentence = await answered(page);
    const copied = async (id: string) => {
      await byTestId(page, id).click();
      return page.evaluate(() => navigator.clipboard.readText());
    };
    expect(await copied("copy-sentence")).toBe(sentence);
    expect(await copied("copy-link")).toBe(page.url());
    await byTestId(page, "calls").locator("summary").click();
    const reply = (await open()).solve({ test: "two-means", inputs: { "effect-d": 0.5, power: 0.8 }, calls: true });
    const calls = "error" in reply ? undefined : reply.calls;
    expect(await copied("copy-program")).toBe(calls?.program);
    expect(await copied("copy-python")).toBe(calls?.python);
    expect(await copied("copy-r")).toBe(calls?.r);
    await close();
  });

  it("keeps designs side by side, saves and loads them", async () => {
    const { page, faults, close } = await visit(browser, disk, STUDY);
    await answered(page);
    await byTestId(page, "keep").click();
    await byTestId(page, "input-effect-d").fill("0.8");
    await sentenceWith(page, "an effect size d of 0.8");
    await byTestId(page, "keep").click();
    await byTestId(page, "comparison").filter({ hasText: "128" }).filter({ hasText: "52" }).waitFor();
    const saved = await downloaded(page, () => byTestId(page, "save-designs").click());
    const designs = JSON.parse(saved.toString()) as { test: string; "effect-d": number; power: number }[];
    expect(designs.map((design) => [design.test, design["effect-d"], design.power])).toEqual([
      ["two-means", 0.5, 0.8],
      ["two-means", 0.8, 0.8],
    ]);
    const again = await visit(browser, disk);
    await byTestId(again.page, "search").waitFor();
    const file = { name: "designs.json", mimeType: "application/json", buffer: saved };
    await again.page.locator('input[type="file"]').setInputFiles(file);
    await byTestId(again.page, "comparison").filter({ hasText: "128" }).filter({ hasText: "52" }).waitFor();
    expect([...faults, ...again.faults]).toEqual([]);
    await again.close();
    await close();
  });
});

async function downloaded(page: Page, act: () => Promise<void>): Promise<Buffer> {
  const [download] = (await Promise.all([page.waitForEvent("download"), act()])) as [Download, void];
  return readFileSync(await download.path());
}

describe("the picture", () => {
  const slider = (page: Page) => byTestId(page, "pictures").getByRole("slider");

  it("has the design to drag along it", async () => {
    const { page, faults, close } = await visit(browser, disk, "#two-means?effect-d=0.5&n=64,64");
    await answered(page);
    await slider(page).waitFor();
    await slider(page).scrollIntoViewIfNeeded();
    const box = await slider(page).boundingBox();
    if (!box) throw new Error("The handle has no place.");
    const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
    await page.mouse.move(x, y);
    await page.mouse.down();
    await page.mouse.move(x + 30, y, { steps: 5 });
    await page.mouse.move(x + 60, y, { steps: 5 });
    await page.mouse.up();
    await byTestId(page, "sentence").filter({ hasNotText: "64 observations" }).waitFor();
    // The address follows the answer a moment later.
    const size = () => Number(/n=(\d+)/.exec(new URL(page.url()).hash)?.[1]);
    await expect.poll(async () => (await answered(page)).includes(`${size()} observations`)).toBe(true);
    expect(size()).toBeGreaterThan(64);
    expect(faults).toEqual([]);
    await close();
  });

  it("moves by the arrow keys", async () => {
    const { page, faults, close } = await visit(browser, disk, "#two-means?effect-d=0.5&n=64,64");
    await slider(page).waitFor();
    await slider(page).focus();
    await page.keyboard.press("ArrowRight");
    await byTestId(page, "sentence").filter({ hasText: "65 observations" }).waitFor();
    expect(faults).toEqual([]);
    await close();
  });

  it("is saved for a paper", async () => {
    const { page, faults, close } = await visit(browser, disk, STUDY);
    await slider(page).waitFor();
    const save = (name: string) =>
      downloaded(page, () => byTestId(page, "pictures").getByRole("button", { name, exact: true }).click());
    const svg = (await save("SVG")).toString();
    expect(svg).toMatch(/^(?:<\?xml[^>]*>\s*)?<svg[^>]* xmlns="http:\/\/www.w3.org\/2000\/svg"/);
    expect(svg).toMatch(/<title[^>]*>[^<]+<\/title>/);
    expect(svg).not.toMatch(/var\(--|<foreignObject|href="(?!#)/);
    const png = await save("PNG");
    expect(png.subarray(1, 4).toString()).toBe("PNG");
    const resolution = png.indexOf("pHYs");
    expect(resolution).toBeGreaterThan(0);
    expect(png.readUInt32BE(resolution + 4)).toBe(Math.round(300 / 0.0254)); // 300 dots an inch, in those of a metre.
    expect(png.readUInt32BE(16)).toBeGreaterThanOrEqual(1500); // pixels across
    expect(faults).toEqual([]);
    await close();
  });

  it("gives its points as CSV", async () => {
    const { page, close } = await visit(browser, disk, STUDY);
    await slider(page).waitFor();
    const csv = (
      await downloaded(page, () => byTestId(page, "pictures").getByRole("button", { name: "CSV", exact: true }).click())
    ).toString();
    const [, ...rows] = csv
      .trim()
      .split(/\r?\n/)
      .map((row) => row.split(","));
    expect(rows.length).toBeGreaterThan(20);
    const kel = await open();
    for (const [n, power] of [rows[5], rows[20]].map((row) => (row ?? []).map(Number))) {
      const reply = kel.solve({ test: "two-means", inputs: { "effect-d": 0.5, n: [n ?? 0, n ?? 0] } });
      expect("error" in reply ? reply.error : reply.results["power"]).toBeCloseTo(power ?? NaN, 12);
    }
    await close();
  });
});

it("prints a study plan", async () => {
  const { page, faults, close } = await visit(browser, disk, STUDY);
  const sentence = await answered(page);
  await page.evaluate(() => {
    window.print = () => document.body.setAttribute("data-printed", "yes");
  });
  await byTestId(page, "print-plan").click();
  await page.waitForSelector("[data-printed]");
  await page.emulateMedia({ media: "print" });
  const visible = await page.evaluate(() => document.body.innerText);
  expect(visible).toContain(sentence);
  expect(visible).toMatch(/references|sources/i);
  expect(await page.locator("svg:visible").count()).toBeGreaterThan(0);
  expect(faults).toEqual([]);
  await close();
});
