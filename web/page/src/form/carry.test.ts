import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import type { Answer } from "../contract";
import { carriedOver } from "./carry";
import { inputsOf } from "./inputs";
import { designOf } from "./said";

const kel = await open();
const twoMeans = kel.describe().tests.find(({ name }) => name === "two-means")!;

function answerTo(words: Record<string, string[]>) {
  const design = designOf(twoMeans, words);
  return { design, answer: kel.solve({ test: "two-means", inputs: inputsOf(twoMeans, design).inputs }) as Answer };
}

describe("another question about the same study", () => {
  it("starts from the sizes that were found", () => {
    const { design, answer } = answerTo({ "effect-d": ["0.5"], power: ["0.8"] });
    expect(carriedOver(twoMeans, { ...design, wish: "power" }, answer).texts["n"]).toEqual(["64"]);
    const uneven = answerTo({ "effect-d": ["0.5"], power: ["0.8"], ratio: ["2"] });
    expect(carriedOver(twoMeans, { ...uneven.design, wish: "power" }, uneven.answer).texts["n"]).toEqual(["48", "96"]);
  });

  it("starts from the effect size that was worked out", () => {
    const { design, answer } = answerTo({ means: ["10", "15"], sd: ["6"], power: ["0.8"] });
    const next = carriedOver(twoMeans, { ...design, form: "effect-d" }, answer);
    expect(next.texts["effect-d"]).toEqual(["-0.833333"]);
  });

  it("changes nothing that was typed, and makes nothing up", () => {
    const { design, answer } = answerTo({ "effect-d": ["0.5"], power: ["0.8"] });
    const typed = { ...design, wish: "power", texts: { ...design.texts, n: ["30"] } };
    expect(carriedOver(twoMeans, typed, answer)).toEqual(typed);
    const means = { ...design, form: "means+sd" };
    expect(carriedOver(twoMeans, means, answer)).toEqual(means);
  });
});
