import { open } from "kelpower/direct";
import { describe, expect, it } from "vitest";
import { readDesign, writeDesign } from "../address";
import type { Parameter, Test } from "../contract";
import type { Design } from "./design";
import { pastedRows, resized } from "./groups";
import { inputsOf } from "./inputs";
import { emptyDesign, shownFields } from "./parts";
import { designOf } from "./said";
import { entriesOf, gridOf, groupsOf } from "./shape";
import { parameterOf } from "./wishes";

const kel = await open();
const { tests } = kel.describe();
const testCalled = (name: string): Test => tests.find((one) => one.name === name)!;
const inputCalled = (test: Test, name: string): Parameter => parameterOf(test, name)!;
const shownNames = (test: Test, design: Design) => shownFields(test, design).map(({ parameter }) => parameter.name);
const sizesOf = (test: Test, design: Design, name: string) => {
  const grid = gridOf(test, design, inputCalled(test, name));
  return grid && [grid.rows.count, grid.columns.count];
};

describe("a table whose rows are counted by an input", () => {
  const test = testCalled("contingency");
  const table = inputCalled(test, "table");
  const given = designOf(test, { table: ["1", "2", "3", "4", "5", "6"], rows: ["2"], power: ["0.8"] });

  it("has a field of its own in place of one for the number of rows", () => {
    expect(sizesOf(test, given, "table")).toEqual([2, 3]);
    expect(shownNames(test, given)).toContain("table");
    expect(shownNames(test, given)).not.toContain("rows");
    expect(gridOf(test, given, table)?.rows.names).toEqual(["Row 1", "Row 2"]);
  });

  it("keeps what was typed at its place when rows and columns are added and removed", () => {
    const larger = resized(test, given, table, 3, 4);
    expect(entriesOf(test, larger, table)).toEqual(["1", "2", "3", "", "4", "5", "6", "", "", "", "", ""]);
    expect(inputsOf(test, larger).lacks.map(({ parameter }) => parameter.name)).toEqual(["table"]);
    const smaller = resized(test, larger, table, 2, 2);
    expect(inputsOf(test, smaller).inputs).toEqual({ table: [1, 2, 4, 5], rows: 2, power: 0.8 });
  });

  it("begins with two rows and two columns", () => {
    const empty = { ...emptyDesign(test, "sample-size"), form: "table+rows" };
    expect(sizesOf(test, empty, "table")).toEqual([2, 2]);
    expect(entriesOf(test, empty, inputCalled(test, "rows"))).toEqual(["2"]);
  });

  it("shows the number of rows where it is none, so that it can be mended", () => {
    for (const rows of ["1", "many", "1e5"]) {
      const wrong = { ...given, texts: { ...given.texts, rows: [rows] } };
      expect(shownNames(test, wrong), rows).toContain("rows");
      expect(kel.solve({ test: test.name, inputs: inputsOf(test, wrong).inputs })).toHaveProperty("error");
    }
  });

  it("is read back from the address", () => {
    const address = writeDesign(test, given);
    expect(address).toBe("contingency?table=1,2,3,4,5,6&rows=2&power=0.8");
    expect(inputsOf(test, readDesign(tests, address)!).inputs).toEqual(inputsOf(test, given).inputs);
  });

  it("is read from rows that are pasted", () => {
    expect(pastedRows("1\t2\r\n\n3\t4\n", (line) => line.split("\t"))).toEqual([
      ["1", "2"],
      ["3", "4"],
    ]);
  });
});

describe("a table whose columns are counted by an input", () => {
  const test = testCalled("repeated-measures");
  const means = ["10", "10", "10", "10", "11", "13"];
  const words = { effect: ["interaction"], measurements: ["3"], means, sd: ["4"], correlation: ["0.6"], n: ["30"] };
  const given = designOf(test, words);

  it("has a row for each group, which no field asks for then", () => {
    expect(sizesOf(test, given, "means")).toEqual([2, 3]);
    expect(groupsOf(test, given)).toBe(2);
    expect(shownNames(test, given)).not.toContain("measurements");
    expect(shownNames(test, given)).not.toContain("groups");
    expect(gridOf(test, given, inputCalled(test, "means"))?.columns.names).toContain("Measurement 3");
  });

  it("can have a single row", () => {
    const one = resized(test, given, inputCalled(test, "means"), 1, 3);
    expect(groupsOf(test, one)).toBe(1);
    const { inputs } = inputsOf(test, { ...one, texts: { ...one.texts, effect: ["within"] } });
    expect(inputs).toMatchObject({ means: [10, 10, 10], measurements: 3 });
    expect(kel.solve({ test: test.name, inputs })).toHaveProperty("sentence");
  });

  it("asks for groups and measurements where there is no table, and can do without groups", () => {
    const plain = designOf(test, { effect: ["within"], measurements: ["3"], "effect-f": ["0.2"], power: ["0.8"] });
    expect(shownNames(test, plain)).toEqual(expect.arrayContaining(["measurements", "groups"]));
    expect(inputsOf(test, plain).lacks).toEqual([]);
    expect(groupsOf(test, plain)).toBe(1);
  });
});

describe("groups that are the cells of crossed factors", () => {
  const test = testCalled("factorial");
  const withLevels = (levels: string[]) => designOf(test, { levels, term: ["1", "2"], means: [], sd: ["4"], n: ["9"] });

  it("are as many as the levels make", () => {
    expect(groupsOf(test, withLevels(["2", "3"]))).toBe(6);
    expect(groupsOf(test, withLevels(["2", "2", "3"]))).toBe(12);
    expect(groupsOf(test, withLevels(["5"]))).toBe(5);
    expect(groupsOf(test, withLevels(["2,3"]))).toBe(6);
  });

  it("are a table with the last factor across", () => {
    const grid = gridOf(test, withLevels(["2", "2", "3"]), inputCalled(test, "means"));
    expect(grid?.columns.names).toEqual(["Factor 3: 1", "Factor 3: 2", "Factor 3: 3"]);
    expect(grid?.rows.names[1]).toBe("Factor 1: 1, Factor 2: 2");
    expect(gridOf(test, withLevels(["5"]), inputCalled(test, "means"))).toBeUndefined();
  });

  it("are four while the levels cannot be read", () => {
    for (const levels of [[""], ["2", "x"], ["1", "3"], ["50", "50"]])
      expect(groupsOf(test, withLevels(levels))).toBe(4);
  });
});
