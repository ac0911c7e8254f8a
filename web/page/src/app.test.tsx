// @vitest-environment happy-dom
import { open } from "kelpower/direct";
import { render } from "preact";
import { act } from "preact/test-utils";
import { afterEach, beforeAll, beforeEach, describe, expect, it, vi } from "vitest";
import { App } from "./app";
import type { Kelpower, SolveRequest } from "./contract";
import { answerWhileTyping, outcome, work } from "./live";
import { description, design, kel, kept, readFromAddress, readStep } from "./state";

// The pictures have tests of their own.
vi.mock("./pictures", () => ({ Pictures: () => null }));

const direct = await open();
const asked: SolveRequest[] = [];
let answerLater: (() => void) | undefined;
let wait = false;
let fails = false;

/** The planner in this thread, which can be made to take long. */
const planner = {
  version: direct.version,
  describe: () => direct.describe(),
  solve: (request: SolveRequest, options?: { signal?: AbortSignal }) => {
    asked.push(request);
    if (fails) return Promise.reject(new Error("fault"));
    if (!wait) return Promise.resolve(direct.solve(request));
    return new Promise((resolve, reject) => {
      answerLater = () => resolve(direct.solve(request));
      options?.signal?.addEventListener("abort", () => reject(new DOMException("ended", "AbortError")));
    });
  },
  convert: (request: Parameters<Kelpower["convert"]>[0]) => Promise.resolve(direct.convert(request)),
} as unknown as Kelpower;

const root = document.createElement("div");
const find = <Kind extends HTMLElement = HTMLElement>(id: string) => root.querySelector<Kind>(`[data-testid="${id}"]`);
const textOf = (id: string) => find(id)?.textContent ?? "";
const pass = (milliseconds: number) => act(() => vi.advanceTimersByTimeAsync(milliseconds) as unknown as Promise<void>);

async function go(hash: string): Promise<void> {
  history.replaceState(null, "", hash);
  await act(() => readFromAddress());
  await pass(1500);
}

async function type(id: string, text: string): Promise<void> {
  const input = find<HTMLInputElement>(id);
  if (!input) throw new Error(`no field ${id}`);
  await act(() => {
    input.value = text;
    input.dispatchEvent(new Event("input", { bubbles: true }));
  });
}

async function press(id: string): Promise<void> {
  const element = find(id);
  if (!element) throw new Error(`nothing to press: ${id}`);
  await act(() => element.click());
  await pass(10);
}

beforeAll(() => {
  document.body.append(root);
  description.value = direct.describe();
  kel.value = planner;
  answerWhileTyping();
});

beforeEach(async () => {
  vi.useFakeTimers();
  wait = false;
  kept.value = [];
  await act(() => render(<App />, root));
  await go("#");
  asked.length = 0;
});

afterEach(() => {
  render(null, root);
  vi.useRealTimers();
});

describe("the page", () => {
  it("begins with the list of all tests, and opens one by a press", async () => {
    expect(root.querySelectorAll("a.test")).toHaveLength(direct.describe().tests.length);
    await press("test-two-means");
    expect(textOf("test-title")).toBe("Independent-samples t test of two means");
    expect(location.hash).toBe("#two-means?means=&sd=&power=0.8");
    expect(find("answer")?.dataset["state"]).toBe("empty");
    expect(textOf("lacks")).toContain("group means, standard deviations");
  });

  it("narrows the list by words and by three questions", async () => {
    await type("search", "before and after");
    expect([...root.querySelectorAll("a.test")].map((link) => link.getAttribute("data-testid"))).toEqual([
      "test-paired-means",
      "test-paired-proportions",
      "test-signed-rank",
    ]);
    await press("clear");
    await press("guide-measure-yesNo");
    await press("guide-groups-two");
    await press("guide-aim-estimate");
    expect(root.querySelectorAll("a.test")).toHaveLength(1);
    await press("test-two-proportions");
    expect(design.value?.wish).toBe("sample-size-for-half-width");
  });

  it("says what is not offered, and that nothing fits", async () => {
    await type("search", "survival");
    expect(textOf("hint")).toContain("no test of survival times");
    await type("search", "xylophone");
    expect(textOf("no-test")).toContain("“xylophone”");
  });

  it("answers while one types, with decimal commas", async () => {
    await go("#two-means?effect-d=0.5&power=0.8");
    expect(textOf("number")).toBe("128");
    expect(textOf("number-label")).toBe("Total sample size");
    await type("input-effect-d", "0,8");
    await pass(1000);
    expect(textOf("number")).toBe("52");
    expect(textOf("sentence")).toContain("an effect size d of 0.8 with a power of 0.8");
    expect(location.hash).toBe("#two-means?effect-d=0.8&power=0.8");
    expect(textOf("status")).not.toContain("52");
    await pass(1000);
    expect(textOf("status")).toBe("Total sample size: 52.");
  });

  it("asks the core once for a burst of keys", async () => {
    await go("#two-means?effect-d=0.5&power=0.8");
    asked.length = 0;
    for (const text of ["0", "0.", "0.2", "0.25"]) {
      await type("input-effect-d", text);
      await pass(30);
    }
    await pass(1000);
    expect(asked.map(({ inputs }) => inputs?.["effect-d"])).toEqual([0.25]);
  });

  it("shows the core's error at its field in the words of the form, after a moment or once the field is left", async () => {
    await go("#two-means?effect-d=0.5&power=0.8");
    await type("input-power", "2");
    await pass(300);
    expect(textOf("number")).toBe("128");
    await pass(1000);
    const message = "Target power is 2, but must be a number between 0 and 1, neither included.";
    expect(textOf("error-power")).toBe(message);
    expect(textOf("error")).toBe(message);
    expect(find("input-power")?.getAttribute("aria-invalid")).toBe("true");
    await type("input-power", "3");
    await pass(150);
    await act(() => void find("input-power")?.dispatchEvent(new Event("blur")));
    expect(textOf("error-power")).toContain("is 3");
  });

  it("does not guess at a number of two meanings", async () => {
    await go("#two-means?effect-d=0.5&power=0.8");
    asked.length = 0;
    await type("input-effect-d", "1,000");
    await pass(1500);
    expect(textOf("error-effect-d")).toBe(
      "“1,000” can be read in two ways. Write 1000 for a thousand, or 1.000 for a decimal.",
    );
    expect(asked).toEqual([]);
  });

  it("changes the question and the form, and goes back", async () => {
    await go("#two-means?effect-d=0.5&power=0.8");
    await press("question-power");
    expect(location.hash).toBe("#two-means?effect-d=0.5&n=64");
    await type("input-n", "64");
    await pass(1000);
    expect(textOf("number")).toBe("0.8015");
    await press("question-unknown");
    await pass(1000);
    expect(find<HTMLSelectElement>("unknown")?.value).toBe("power:effect-d");
    expect(textOf("number")).toBe("0.4991");
    await press("question-half-width");
    await type("input-sd", "10");
    await pass(1000);
    expect(textOf("number-label")).toMatch(/half-width/i);
  });

  it("has an entry for each group, of which there can be more or fewer", async () => {
    await go("#anova?means=10,12,15&sd=6&power=0.9");
    expect(textOf("number")).toBe("111");
    await press("add-group");
    expect(find("input-means-4")).not.toBeNull();
    expect(textOf("lacks")).toContain("group means");
    await press("remove-group");
    await pass(1000);
    expect(textOf("number")).toBe("111");
    await press("question-power");
    await press("same-n");
    expect(find("input-n-3")).not.toBeNull();
  });

  it("fills in the example of the question", async () => {
    await go("#anova?effect-f=&power=0.8");
    await press("example");
    await pass(1000);
    expect(textOf("sentence")).toBe(
      direct.describe().tests.find(({ name }) => name === "anova")?.examples[1]?.sentence,
    );
  });

  it("tells of a long search, which can be stopped and started again", async () => {
    wait = true;
    await go("#two-means?effect-d=0.5&power=0.8");
    expect(find("answer")?.dataset["state"]).toBe("computing");
    expect(find("progress")).not.toBeNull();
    await press("stop");
    expect(find("progress")).toBeNull();
    expect(outcome.value.kind).toBe("stopped");
    await press("again");
    await pass(500);
    expect(work.value).toBe("long");
    await act(() => answerLater?.());
    await pass(10);
    expect(textOf("number")).toBe("128");
    expect(work.value).toBe("none");
  });

  it("says so when the planner fails, and can go on", async () => {
    fails = true;
    await go("#two-means?effect-d=0.5&power=0.8");
    expect(textOf("failed")).toContain("has failed");
    fails = false;
    await press("again");
    expect(textOf("number")).toBe("128");
  });

  it("lets only the newest question answer", async () => {
    wait = true;
    await go("#two-means?effect-d=0.5&power=0.8");
    const first = answerLater;
    await type("input-effect-d", "0.8");
    await pass(200);
    await act(() => first?.());
    await act(() => answerLater?.());
    await pass(10);
    expect(textOf("number")).toBe("52");
  });

  it("keeps designs side by side, in the address too", async () => {
    await go("#two-means?effect-d=0.5&power=0.8");
    await press("keep");
    await act(() => {
      const name = find<HTMLInputElement>("name-1")!;
      name.value = "Plan A";
      name.dispatchEvent(new Event("change", { bubbles: true }));
    });
    expect(location.hash).toBe("#two-means?effect-d=0.5&power=0.8;Plan+A:two-means?effect-d=0.5&power=0.8");
    await go(`${location.hash};B:anova?effect-f=0.25&n=20&groups=3`);
    expect(textOf("comparison")).toContain("0.3744");
    await press("load-2");
    await pass(1000);
    expect(textOf("test-title")).toContain("analysis of variance");
    await press("remove-1");
    await press("remove-1");
    expect(find("comparison")).toBeNull();
    expect(location.hash).toBe("#anova?effect-f=0.25&groups=3&n=20");
  });

  it("answers all that are kept in an address, and what is typed first", async () => {
    wait = true;
    await go(
      "#two-means?effect-d=&power=0.8;A:mean?effect-d=0.5&n=30;B:two-means?effect-d=0.4&n=50;C:mean?effect-d=2&power=7",
    );
    expect(asked.map(({ test }) => test)).toEqual(["mean"]);
    wait = false;
    await type("input-effect-d", "0.5");
    await pass(1000);
    expect(asked.map(({ test }) => test)).toEqual(["mean", "two-means", "mean", "two-means", "mean"]);
    expect(textOf("number")).toBe("128");
    const text = textOf("comparison");
    expect(text).toContain("Power: 0.7540");
    expect(text).toContain("Power: 0.5082");
    expect(text).toContain("Target power is 7");
  });

  it("keeps them when one goes back, but not when another address is written", async () => {
    await go("#two-means?effect-d=0.5&power=0.8");
    await press("keep");
    await press("question-power");
    // A step back as the browser makes it.
    history.replaceState({ kelpower: true }, "", "#two-means?effect-d=0.5&power=0.8");
    await act(() => readStep());
    expect(design.value?.wish).toBe("sample-size");
    expect(kept.value).toHaveLength(1);
    expect(location.hash).toContain(";Design+1:two-means");
    history.replaceState(null, "", "#anova");
    await act(() => readStep());
    expect(design.value?.test).toBe("anova");
    expect(kept.value).toEqual([]);
  });

  it("works out an effect size from published results", async () => {
    await go("#two-means?means=&sd=&power=0.8");
    await act(() => {
      const select = find<HTMLSelectElement>("conversion")!;
      select.value = "t+n";
      select.dispatchEvent(new Event("change", { bubbles: true }));
    });
    const converter = find("converter")!;
    const fields = () => [...converter.querySelectorAll("input")];
    const fill = (index: number, text: string) =>
      act(() => {
        fields()[index]!.value = text;
        fields()[index]!.dispatchEvent(new Event("input", { bubbles: true }));
      });
    await fill(0, "2,3");
    await fill(1, "20; 20");
    await pass(500);
    await press("effect-use-effect-d");
    await pass(1000);
    expect(location.hash).toBe("#two-means?effect-d=0.727324&power=0.8");
    expect(textOf("number")).toBe("62");
  });

  it("shows the explanation and the calls of the other front ends", async () => {
    await go("#two-means?effect-d=0.5&power=0.8&one-sided");
    expect(textOf("explanation")).toContain("noncentrality");
    expect(textOf("call-program")).toBe("kelpower two-means --effect-d 0.5 --one-sided --power 0.8");
    expect(textOf("call-python")).toBe("kelpower.two_means(effect_d=0.5, one_sided=True, power=0.8)");
  });
});
