import { describe, expect, it } from "vitest";
import { roundStep, shortestBetween, shortestFrom, shown, shownPower, toStep } from "./numbers";

describe("numbers as people write them", () => {
  it("keeps all digits before the decimal sign", () => {
    expect(shown(123456.7, "en", 4)).toBe("123457");
    expect(shown(0.80146, "en")).toBe("0.8015");
    expect(shown(0, "en")).toBe("0");
  });
  it("takes the decimal sign of the language and a minus sign", () => {
    expect(shown(-1.9789, "de")).toBe("\u22121,979");
    expect(shown(-0.5, "en")).toBe("\u22120.5");
  });
  it("writes tiny and huge numbers with a power of ten", () => {
    expect(shown(1.25e-7, "en")).toBe("1.25e\u22127");
    expect(shown(-3e12, "de")).toBe("\u22123e12");
  });
  it("makes no certainty of a high power", () => {
    expect(shownPower(0.8, "en")).toBe("0.80");
    expect(shownPower(0.99649, "en")).toBe("0.9964");
    expect(shownPower(0.999999, "en")).toBe("> 0.9999");
    expect(shownPower(1, "en")).toBe("1.00");
    expect(shownPower(0.8, "de")).toBe("0,80");
  });
});

describe("round numbers", () => {
  it("rounds a step up to 1, 2 or 5 times a power of ten", () => {
    expect([0.0061, 0.011, 0.02, 3, 60].map(roundStep)).toEqual([0.01, 0.02, 0.02, 5, 100]);
    expect(roundStep(0)).toBe(1);
  });
  it("leaves no dust of binary arithmetic", () => {
    expect(toStep(0.30000000000000004, 0.1)).toBe(0.3);
    expect(toStep(-0.26, 0.05)).toBe(-0.25);
  });
  it("finds the number of fewest digits in an interval", () => {
    expect(shortestBetween(0.7955, 0.80146)).toBe(0.8);
    expect(shortestBetween(0.68812, 0.69693)).toBe(0.69);
    expect(shortestBetween(0.99123, 0.99144)).toBe(0.9914);
    expect(shortestBetween(0.5, 0.5)).toBe(0.5);
    expect(shortestFrom(1.9963, 2.0015)).toBe(2);
    expect(shortestFrom(0.06984, 0.07003)).toBe(0.07);
  });
});
