import { describe, expect, it } from "vitest";
import { readNumber, showCount, showFigure, showPower, splitList } from "./numbers";

describe("a number as it is written", () => {
  const values: [string, number][] = [
    ["0.5", 0.5],
    ["0,5", 0.5],
    [" 12 ", 12],
    ["-3", -3],
    ["\u22123,25", -3.25],
    [".05", 0.05],
    [",05", 0.05],
    ["5.", 5],
    ["1e-3", 0.001],
    ["80%", 0.8],
    ["7 %", 0.07],
    ["2,5%", 0.025],
    ["1.234,5", 1234.5],
    ["1,234.5", 1234.5],
    ["1,234,567", 1234567],
    ["1.234.567", 1234567],
    ["12 345", 12345],
    ["12\u202f345,6", 12345.6],
    ["1'000", 1000],
    ["0,125", 0.125],
    ["1.000", 1],
    ["104.5", 104.5],
  ];
  for (const [text, value] of values) {
    it(`reads ${JSON.stringify(text)}`, () => expect(readNumber(text, false)).toEqual({ value }));
  }

  it("takes groups of three digits of a whole number for thousands", () => {
    expect(readNumber("1,000", true)).toEqual({ value: 1000 });
    expect(readNumber("1.000", true)).toEqual({ value: 1000 });
    expect(readNumber("12.500", true)).toEqual({ value: 12500 });
    expect(readNumber("2.5", true)).toEqual({ value: 2.5 });
  });

  it("does not choose between two meanings", () => {
    expect(readNumber("1,000", false)).toEqual({ unclear: "1,000" });
    expect(readNumber("-12,500", false)).toEqual({ unclear: "-12,500" });
  });

  it("hands on what is no number", () => {
    for (const text of ["abc", "1,2,3", "0..5", "1-2", "", "--1", "1.2.3", "NaN", "Infinity", "0x10", "1 2"]) {
      expect(readNumber(text, false), text).toEqual({ text });
    }
  });
});

describe("a list as it is pasted", () => {
  const lists: [string, string[]][] = [
    ["10; 12; 15", ["10", "12", "15"]],
    ["10;12,5;15", ["10", "12,5", "15"]],
    ["10, 12, 15", ["10", "12", "15"]],
    ["10,12,15", ["10", "12", "15"]],
    ["10.5,12", ["10.5", "12"]],
    ["10 12 15", ["10", "12", "15"]],
    ["10\t12\t15", ["10", "12", "15"]],
    ["10\n12\n15\n", ["10", "12", "15"]],
    ["0,5", ["0,5"]],
    ["7", ["7"]],
    ["", []],
  ];
  for (const [text, entries] of lists) {
    it(`is split: ${JSON.stringify(text)}`, () => expect(splitList(text)).toEqual(entries));
  }
});

describe("a number as it is shown", () => {
  it("has four significant digits", () => {
    expect([0.4990691779658208, 104.5425693968357, 0.05, 64, 1e-7, 2e9].map(showFigure)).toEqual([
      "0.4991",
      "104.5",
      "0.05",
      "64",
      "1e-7",
      "2e+9",
    ]);
  });

  it("groups the digits of large counts", () => {
    expect([128, 9999, 10000, 1234567].map(showCount)).toEqual(["128", "9999", "10\u202f000", "1\u202f234\u202f567"]);
  });

  it("never shows a power as certain that is not", () => {
    expect([0.8014595579222541, 0.99999, 1, 0].map(showPower)).toEqual(["0.8015", "above 0.9999", "1.0000", "0.0000"]);
  });
});
