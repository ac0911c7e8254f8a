import { describe, expect, it } from "vitest";
import { crossings, isSaw, leastToCome, nearestIndex, staysFrom, valueAt } from "./series";

const x = [1, 2, 4, 8];
const values = [0.1, 0.3, 0.2, 0.6];

describe("values between the points of a chart", () => {
  it("interpolates, and tells nothing outside or in a gap", () => {
    expect(valueAt(x, values, 2)).toBe(0.3);
    expect(valueAt(x, values, 6)).toBeCloseTo(0.4, 12);
    expect(valueAt(x, values, 8)).toBe(0.6);
    expect(valueAt(x, values, 0.5)).toBeNull();
    expect(valueAt(x, values, 8.1)).toBeNull();
    expect(valueAt(x, [0.1, null, 0.2, 0.6], 3)).toBeNull();
    expect(valueAt([], [], 1)).toBeNull();
  });
  it("finds the nearest point", () => {
    expect([0, 1.4, 1.5, 3.1, 7, 99].map((at) => nearestIndex(x, at))).toEqual([0, 0, 0, 2, 3, 3]);
  });
  it("tells from where on a level is kept, not where it is first met", () => {
    expect(staysFrom(x, values, 0.25)).toBe(8);
    expect(staysFrom(x, values, 0.15)).toBe(2);
    expect(staysFrom(x, values, 0.7)).toBeNull();
  });
  it("finds all crossings of a level", () => {
    const found = crossings(x, values, 0.25);
    expect(found).toHaveLength(3);
    expect(found[0]).toBeCloseTo(1.75, 12);
    expect(found[1]).toBeCloseTo(3, 12);
    expect(found[2]).toBeCloseTo(4.5, 12);
  });
  it("knows a saw, and not a valley or rounding", () => {
    expect(isSaw([0.1, 0.2, 0.15, 0.25, 0.2, 0.3, 0.25, 0.35])).toBe(true);
    expect(isSaw([0.9, 0.5, 0.05, 0.5, 0.9])).toBe(false);
    expect(isSaw([0.5, 0.501, 0.5, 0.501, 0.5, 0.501, 0.5])).toBe(false);
  });
  it("takes the least that is still to come, and keeps gaps", () => {
    expect(leastToCome([0.1, 0.3, 0.2, null, 0.6, 0.5])).toEqual([0.1, 0.2, 0.2, null, 0.5, 0.5]);
  });
});
