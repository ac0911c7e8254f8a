import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { readAddress, readDesign, writeAddress, writeDesign } from "./address";
import { inputsOf } from "./form/inputs";

const { tests } = (await open()).describe();
const twoMeans = tests.find(({ name }) => name === "two-means")!;

function inputsIn(text: string) {
  const design = readDesign(tests, text);
  const test = tests.find(({ name }) => name === design?.test);
  return design && test && inputsOf(test, design).inputs;
}

describe("an address", () => {
  it("is in the words of the program", () => {
    const design = readDesign(tests, "two-means?effect-d=0.5&power=0.8");
    expect(design && writeDesign(twoMeans, design)).toBe("two-means?effect-d=0.5&power=0.8");
    const list = readDesign(tests, "two-means?means=10,12&sd=5&n=20,30&one-sided");
    expect(list && writeDesign(twoMeans, list)).toBe("two-means?means=10,12&sd=5&n=20,30&one-sided");
  });

  it("may be the call of the program, escaped or not", () => {
    const inputs = { "effect-d": -0.5, power: 0.8, "one-sided": true };
    for (const text of [
      "two-means --effect-d -0.5 --power 0.8 --one-sided",
      "kelpower two-means --effect-d=-0.5 --power=0.8 --one-sided",
      "two-means%20--effect-d%20-0.5%20--power%200.8%20--one-sided",
      "two-means+--d+-0.5+--target-power+0.8+--one-sided",
    ]) {
      expect(inputsIn(text), text).toEqual(inputs);
    }
  });

  it("holds what is only half typed", () => {
    expect(readDesign(tests, "two-means?means=10,&sd=&power=0.8")).toMatchObject({
      wish: "sample-size",
      form: "means+sd",
      texts: { means: ["10", ""], power: ["0.8"] },
    });
    const wrong = readDesign(tests, "two-means?effect-d=a%26b%3Bc&power=0.8");
    expect(wrong?.texts["effect-d"]).toEqual(["a&b;c"]);
    expect(wrong && writeDesign(twoMeans, wrong)).toBe("two-means?effect-d=a%26b%3Bc&power=0.8");
  });

  it("opens a test by its name alone", () => {
    expect(readDesign(tests, "anova")).toMatchObject({ test: "anova", wish: "sample-size" });
  });

  it("holds designs side by side with their names", () => {
    const text =
      "#two-means?effect-d=0.5&power=0.8;Larger%20effect:two-means?effect-d=0.8&power=0.8;a%3Bb:anova?effect-f=0.2&n=20&groups=3";
    const address = readAddress(tests, text);
    expect(address.kept.map(({ name, design }) => [name, design.test])).toEqual([
      ["Larger effect", "two-means"],
      ["a;b", "anova"],
    ]);
    expect(readAddress(tests, writeAddress(tests, address))).toEqual(address);
    expect(readAddress(tests, "#;One:anova?effect-f=0.2&n=20&groups=3")).toMatchObject({
      design: null,
      kept: [{ name: "One" }],
    });
  });

  it("that says nothing opens the list", () => {
    for (const text of ["", "#", "#nonsense", "#%E0%A4%A", "#;;", "#?a=b", "#;x", "#two-means%00?"]) {
      expect(readAddress(tests, text), text).toEqual({ design: null, kept: [] });
    }
  });

  it("passes over inputs that the test does not have", () => {
    expect(inputsIn("two-means?effect-d=0.5&power=0.8&zinc=3&__proto__=1&constructor")).toEqual({
      "effect-d": 0.5,
      power: 0.8,
    });
  });
});
