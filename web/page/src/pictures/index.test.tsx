// @vitest-environment happy-dom
import { load as start } from "kelpower";
import type { Kelpower } from "kelpower";
import { render } from "preact";
import { afterAll, afterEach, beforeAll, beforeEach, describe, expect, it, vi } from "vitest";
import { Pictures } from "./index";
import type { Answer, Design, Test } from "./model";
import { hasChanges } from "./use_loaded";

let kel: Kelpower;
beforeAll(async () => {
  kel = await start();
});
afterAll(() => kel.close());

beforeEach(() => {
  vi.spyOn(HTMLElement.prototype, "clientWidth", "get").mockReturnValue(600);
  HTMLElement.prototype.setPointerCapture = () => {};
});
afterEach(() => {
  document.body.replaceChildren();
  vi.restoreAllMocks();
});

/** The page around the pictures: it keeps the inputs and asks for the answer. */
class Page {
  readonly changes: [string, unknown][] = [];
  readonly place = document.createElement("div");
  answer!: Answer;

  constructor(public design: Design) {
    document.body.append(this.place);
  }

  async show(): Promise<this> {
    this.answer = (await kel.solve({ ...this.design, names: "dash" } as never)) as unknown as Answer;
    const test = kel.describe().tests.find(({ name }) => name === this.design.test) as unknown as Test;
    const onChange = (name: string, value: unknown) => {
      this.changes.push([name, value]);
      this.design = { ...this.design, inputs: { ...this.design.inputs, [name]: value } };
    };
    const page = (
      <Pictures design={this.design} answer={this.answer} description={test} kel={kel} onChange={onChange} />
    );
    render(page, this.place);
    await vi.waitFor(() => expect(this.place.querySelector(".pictures-drawing svg")).not.toBeNull(), 20_000);
    return this;
  }

  handle(): HTMLElement {
    return this.place.querySelector<HTMLElement>("[role=slider]")!;
  }

  async choose(kind: string): Promise<void> {
    const label = [...this.place.querySelectorAll("label")].find((one) => one.textContent === kind)!;
    label.querySelector("input")!.dispatchEvent(new Event("change", { bubbles: true }));
    await vi.waitFor(() => expect(this.place.querySelector(".is-chosen")!.textContent).toBe(kind), 20_000);
  }

  press(key: string, more: KeyboardEventInit = {}): void {
    this.handle().dispatchEvent(new KeyboardEvent("keydown", { key, bubbles: true, cancelable: true, ...more }));
  }

  drag(across: number, up: number): void {
    const pointer = (type: string, x: number, y: number) => {
      const event = new MouseEvent(type, { clientX: x, clientY: y, button: 0, bubbles: true });
      this.handle().dispatchEvent(event);
    };
    pointer("pointerdown", 100, 100);
    pointer("pointermove", 100 + across, 100 - up);
    pointer("pointerup", 100 + across, 100 - up);
  }

  async changed(): Promise<[string, unknown][]> {
    await vi.waitFor(() => expect(this.changes.length).toBeGreaterThan(0), 20_000);
    return this.changes;
  }
}

const anova = { test: "anova", inputs: { means: [10, 12, 15], sd: 6, n: 20 } };

describe("the pictures on the page", () => {
  it("offer the kinds that fit, and tell the picture in words", async () => {
    const page = await new Page(anova).show();
    const kinds = [...page.place.querySelectorAll(".pictures-kinds label")].map((label) => label.textContent);
    expect(kinds).toEqual(["Along one input", "What power is", "Over two inputs"]);
    expect(page.place.querySelector("figcaption")!.textContent).toContain("the power is 0.63");
    expect(page.handle().getAttribute("aria-valuetext")).toBe("n per group = 20, power 0.63");
    expect(Number(page.handle().getAttribute("aria-valuenow"))).toBe(20);
  });

  it("move the sizes by the arrow keys", async () => {
    const page = await new Page(anova).show();
    page.press("ArrowRight");
    expect(await page.changed()).toEqual([["n", 21]]);
  });

  it("move ten steps with shift, to the ends, and leave other keys alone", async () => {
    const page = await new Page(anova).show();
    page.press("a");
    page.press("ArrowRight", { ctrlKey: true });
    page.press("ArrowLeft", { shiftKey: true });
    expect(await page.changed()).toEqual([["n", 10]]);
  });

  it("move the design by the mouse to the size under it", async () => {
    const page = await new Page(anova).show();
    const before = parseFloat(page.handle().style.left);
    page.drag(120, 0);
    const [[name, value]] = (await page.changed()) as [[string, number]];
    expect(name).toBe("n");
    // The axis goes from 2 to 65 over the width between the margins.
    const perPixel = (65 - 2) / (600 - 18 - (before - ((20 - 2) / (65 - 2)) * ((600 - 18 - before) / (1 - 18 / 63))));
    expect(value).toBeGreaterThan(20);
    expect(Math.abs(value - (20 + 120 * perPixel))).toBeLessThan(1.5);
    await page.show();
    expect(page.answer.inputs["n"]).toEqual([value, value, value]);
  });

  it("move the target where sizes are asked for", async () => {
    const page = await new Page({ test: "two-means", inputs: { "effect-d": 0.5, power: 0.8 } }).show();
    page.drag(100, 0);
    const [[name, value]] = (await page.changed()) as [[string, number]];
    expect(name).toBe("power");
    expect(value).toBeGreaterThan(0.8);
    await page.show();
    expect(page.answer.question).toBe("sample-size");
    expect(page.answer.results["power"]).toBeGreaterThanOrEqual(value);
  });

  it("move two inputs on a surface", async () => {
    const page = await new Page({ test: "pearson", inputs: { r: 0.3, n: 84 } }).show();
    await page.choose("Over two inputs");
    page.press("ArrowUp");
    const changes = Object.fromEntries(await page.changed());
    expect(changes["n"]).toBe(84);
    expect(changes["r"]).toBeGreaterThan(0.3);
  });

  it("move by a slider under the distributions", async () => {
    const page = await new Page(anova).show();
    await page.choose("What power is");
    const slider = page.place.querySelector<HTMLInputElement>("input[type=range]")!;
    expect([slider.min, slider.max, slider.value]).toEqual(["2", "65", "20"]);
    slider.value = "30";
    slider.dispatchEvent(new Event("input", { bubbles: true }));
    expect(await page.changed()).toEqual([["n", 30]]);
  });

  it("show no handle where several designs are drawn", async () => {
    const page = await new Page({ test: "two-means", inputs: { "effect-d": [0.3, 0.5], power: 0.8 } }).show();
    expect(page.place.querySelector("figcaption")!.textContent).toContain("a curve for each effect size d");
    expect(page.handle()).toBeNull();
  });

  it("show the numbers as a table", async () => {
    const page = await new Page(anova).show();
    const details = page.place.querySelector("details")!;
    details.open = true;
    details.dispatchEvent(new Event("toggle"));
    await vi.waitFor(() => expect(page.place.querySelectorAll("tbody tr").length).toBe(21));
    expect(page.place.querySelector("tbody tr")!.textContent).toMatch(/^20\.\d+$/);
  });
});

describe("a design that is moved", () => {
  const scale = (page: Page) =>
    [...page.place.querySelectorAll("svg svg text")].map((text) => text.textContent).join(" ");

  it("keeps the scales of its picture, also while older answers come", async () => {
    const page = await new Page({ test: "two-means", inputs: { "effect-d": 0.5, n: 40 } }).show();
    const before = scale(page);
    page.drag(60, 0);
    await page.changed();
    const moved = page.handle().getAttribute("aria-valuenow");
    expect(Number(moved)).toBeGreaterThan(45);
    // An answer to a size on the way.
    const last = page.design;
    page.design = { test: "two-means", inputs: { "effect-d": 0.5, n: 42 } };
    await page.show();
    await new Promise((done) => setTimeout(done, 100));
    expect(page.handle().getAttribute("aria-valuenow")).toBe(moved);
    page.design = last;
    await page.show();
    await vi.waitFor(
      () => expect(page.place.querySelector("figcaption")!.textContent).toContain(`With ${moved}`),
      20_000,
    );
    expect(scale(page)).toBe(before);
    // Nor are they fitted when the page has had its time to answer.
    await new Promise((done) => setTimeout(done, 1700));
    expect(scale(page)).toBe(before);
  });

  it("goes back where the page does not follow", async () => {
    const page = await new Page(anova).show();
    page.press("ArrowRight");
    await page.changed();
    expect(page.handle().getAttribute("aria-valuenow")).toBe("21");
    page.design = anova;
    await vi.waitFor(() => expect(page.handle().getAttribute("aria-valuenow")).toBe("20"), 20_000);
  });

  it("has scales of its own when the form changes it", async () => {
    const page = await new Page({ test: "two-means", inputs: { "effect-d": 0.5, n: 40 } }).show();
    const before = scale(page);
    page.design = { test: "two-means", inputs: { "effect-d": 0.1, n: 40 } };
    await page.show();
    await vi.waitFor(() => expect(scale(page)).not.toBe(before), 20_000);
  });

  it("is known again in the form that the page gives it", () => {
    expect(hasChanges({ n: [21, 21, 21], sd: 6 }, { n: 21 })).toBe(true);
    expect(hasChanges({ n: [21] }, { n: 21 })).toBe(true);
    expect(hasChanges({ means: [10, 12] }, { means: [10, 12] })).toBe(true);
    expect(hasChanges({ n: [21, 22] }, { n: 21 })).toBe(false);
    expect(hasChanges({ n: 21, power: 0.8 }, { n: 21, power: 0.81 })).toBe(false);
    expect(hasChanges({}, { n: 21 })).toBe(false);
  });
});

describe("choices", () => {
  const select = (page: Page, name: string, value: string) => {
    const label = [...page.place.querySelectorAll("label")].find((one) => one.textContent!.startsWith(name))!;
    const input = label.querySelector<HTMLSelectElement | HTMLInputElement>("select, input")!;
    input.value = value;
    input.dispatchEvent(new Event("change", { bubbles: true }));
  };
  const sentence = (page: Page) => page.place.querySelector("figcaption")!.textContent;

  it("draw over another input, and several curves", async () => {
    const page = await new Page(anova).show();
    select(page, "Across", "sd");
    await vi.waitFor(() => expect(sentence(page)).toContain("At standard deviation = 6"), 20_000);
    select(page, "Several curves", "alpha");
    await vi.waitFor(() => expect(sentence(page)).toContain("a curve for each significance level"), 20_000);
    select(page, "Values of", "0.02 0,2");
    await vi.waitFor(() => expect(sentence(page)).toContain("Significance level 0.2:"), 20_000);
  });

  it("keep the picture and tell what is wrong with a value", async () => {
    const page = await new Page(anova).show();
    select(page, "Several curves", "alpha");
    await vi.waitFor(() => expect(sentence(page)).toContain("a curve for each"), 20_000);
    select(page, "Values of", "0.05 7");
    await vi.waitFor(() => {
      expect(page.place.querySelector(".pictures-note")!.textContent).toContain("between 0 and 1");
    }, 20_000);
    expect(sentence(page)).toContain("a curve for each significance level");
  });

  it("go back to the first picture when they do not fit another design", async () => {
    const page = await new Page(anova).show();
    select(page, "Across", "mean3");
    await vi.waitFor(() => expect(sentence(page)).toContain("mean 3 = 15"), 20_000);
    page.design = { test: "anova", inputs: { "effect-f": 0.25, groups: 4, n: 30 } };
    await page.show();
    await vi.waitFor(() => expect(sentence(page)).toContain("With 30 observations per group"), 20_000);
  });
});
