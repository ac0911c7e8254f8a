// @vitest-environment happy-dom
import { load } from "kelpower";
import type { Kelpower } from "kelpower";
import { afterAll, afterEach, beforeAll, describe, expect, it, vi } from "vitest";
import type { Answer, Test } from "../pictures/model";
import { buildPlan, planToPrint } from "./plan";

let kel: Kelpower;
beforeAll(async () => {
  kel = await load();
});
afterAll(() => kel.close());
afterEach(() => vi.restoreAllMocks());

async function request(test: string, inputs: Record<string, unknown>) {
  const design = { test, inputs };
  const answer = (await kel.solve({ ...design, names: "dash" } as never)) as unknown as Answer;
  const description = kel.describe().tests.find(({ name }) => name === test) as unknown as Test;
  return { design, answer, description, kel };
}

const rowsOf = (place: Element) =>
  Object.fromEntries(
    [...place.querySelectorAll("tr")].map((row) => [
      row.querySelector("th")!.textContent!,
      row.querySelector("td")!.textContent!,
    ]),
  );

describe("the study plan", () => {
  it("has the question, the answer, a figure, the explanation and the references", async () => {
    const place = await buildPlan(await request("anova", { means: [10, 12, 15], sd: 6, power: 0.9 }));
    const rows = rowsOf(place);
    expect(rows["Group means"]).toBe("10, 12, 15");
    expect(rows["Target power"]).toBe("0.9");
    expect(rows["Total sample size"]).toBe("111");
    expect(rows["Group sizes"]).toBe("37 each");
    expect(place.querySelector(".statement")!.textContent).toContain("needs 37 observations in each of 3 groups");
    expect(place.querySelector("figure svg")).not.toBeNull();
    expect(place.querySelector("figcaption")!.textContent).toContain("the power is 0.90");
    expect(place.querySelector(".formula")!.textContent).toContain("noncentrality = N f^2");
    expect(place.textContent).toContain("Cohen (1988)");
    expect(place.textContent).toContain("pwr.anova.test(");
    expect(place.textContent).toContain("kelpower anova --means 10,12,15 --sd 6 --power 0.9");
    expect(place.textContent).toContain(`kelpower ${kel.version}`);
    expect(place.textContent).not.toMatch(/undefined|NaN|\[object/);
  });
  it("is made for every example of every test", async () => {
    for (const { name, examples, parameters } of kel.describe().tests) {
      for (const { inputs } of examples) {
        const place = await buildPlan(await request(name, { ...inputs }));
        const what = JSON.stringify(inputs);
        expect(place.querySelector("figure svg"), what).not.toBeNull();
        expect(place.textContent, what).not.toMatch(/undefined|NaN|\[object/);
        // Every row has a name that people read, not that of an option.
        const labels = Object.keys(rowsOf(place)).filter((label) => label !== "Half-width");
        const words = new Set(parameters.map(({ label }) => label.toLowerCase()));
        for (const label of labels.filter((one) => !words.has(one.toLowerCase())))
          expect(label, what).not.toMatch(/^[A-Z][a-z0-9]*-[a-z0-9-]+$/);
      }
    }
    expect(document.querySelectorAll("#plan-to-print")).toHaveLength(1);
  }, 600_000);
  it("is printed, and leaves the page afterwards", async () => {
    const print = vi.fn(() => expect(document.documentElement.className).toContain("prints-plan"));
    window.print = print;
    await planToPrint(await request("pearson", { r: 0.3, n: 84 }));
    expect(print).toHaveBeenCalledOnce();
    window.dispatchEvent(new Event("afterprint"));
    expect(document.documentElement.className).not.toContain("prints-plan");
    expect(document.querySelector("#plan-to-print")).toBeNull();
  });
});
