import { load } from "kelpower";
import { describe, expect, it } from "vitest";
import { designsToJson, loadDesigns, problems } from "./designs";

describe("saved designs", () => {
  it("are what the program writes with --save", () => {
    const design = { test: "two-means", inputs: { "effect-d": 0.5, power: 0.8 } };
    expect(designsToJson([design])).toBe('{"test":"two-means","effect-d":0.5,"power":0.8}\n');
  });
  it("leave out what is not given", () => {
    const inputs = { r: 0.3, n: null, null: 0, "one-sided": false };
    expect(designsToJson([{ test: "pearson", inputs }])).toBe(
      '{"test":"pearson","r":0.3,"null":0,"one-sided":false}\n',
    );
  });
  it("come back as they were, all examples of all tests together", async () => {
    const kel = await load();
    const designs = kel
      .describe()
      .tests.flatMap(({ name, examples }) => examples.map(({ inputs }) => ({ test: name, inputs: { ...inputs } })));
    kel.close();
    expect(designs.length).toBeGreaterThan(50);
    expect(loadDesigns(designsToJson(designs))).toEqual({ designs });
    expect(loadDesigns(designsToJson(designs.slice(0, 1)))).toEqual({ designs: designs.slice(0, 1) });
  });
  it("may have names with underscores, and empty fields", () => {
    const text = '\uFEFF[{"test":"two_means","effect_d":0.5,"power":0.8,"n":null,"alpha":""}]';
    expect(loadDesigns(text)).toEqual({ designs: [{ test: "two-means", inputs: { "effect-d": 0.5, power: 0.8 } }] });
  });
  it("tell what is wrong with a file, and keep what is right", () => {
    expect(loadDesigns("n;power").problem).toBe(problems.notJson);
    for (const text of ["3", "null", "[]", "[[1]]", '["mean"]']) {
      expect(loadDesigns(text), text).toEqual({ designs: [], problem: problems.noDesigns });
    }
    const partly = loadDesigns('[{"test":"mean","sd":10},{"sd":10},{"test":"mean","sd":{"a":1}}]');
    expect(partly.designs).toEqual([{ test: "mean", inputs: { sd: 10 } }]);
    expect(partly.problem).toBe(`${problems.noTest(2)} ${problems.notAValue(3, "sd")}`);
  });
});
