// @vitest-environment happy-dom
import { load as start } from "kelpower";
import { afterEach, describe, expect, it, vi } from "vitest";
import { pictureOf } from "../pictures/build";
import type { Picture } from "../pictures/build";
import { load, offerFor } from "../pictures/load";
import type { Test } from "../pictures/model";
import { csvOf } from "./csv";
import { download } from "./download";
import { crc32, densityChunk, withDensity } from "./png";
import { paperOf } from "./svg";

afterEach(() => vi.restoreAllMocks());

async function curve(): Promise<Picture> {
  const kel = await start();
  const test = kel.describe().tests.find(({ name }) => name === "anova") as unknown as Test;
  const design = { test: "anova", inputs: { means: [10, 12, 15], sd: 6, n: 20 } };
  const offer = await offerFor(kel, design, "power", test);
  const choice = { kind: "curve" as const, axis: "n", up: "", showsSizes: true, compare: null };
  const loaded = await load(kel, design, "power", offer, choice, null);
  kel.close();
  return pictureOf({ test, loaded, given: design.inputs, moved: null, domain: null })!;
}

describe("CSV", () => {
  it("has a line for each row, all digits, and empty fields for gaps", () => {
    const table = {
      columns: ["n", 'power (a, "b")'],
      rows: [
        [2, 0.1 + 0.2],
        [3, null],
      ],
    };
    expect(csvOf(table)).toBe('n,"power (a, ""b"")"\n2,0.30000000000000004\n3,\n');
  });
  it("holds the points of the curve", async () => {
    const lines = csvOf((await curve()).numbers()).split("\n");
    expect(lines[0]).toBe("n,power");
    expect(lines.find((line) => line.startsWith("20,"))).toMatch(/^20,0\.63323612978093\d*$/);
    expect(lines.at(-1)).toBe("");
  });
});

describe("SVG for a paper", () => {
  it("stands alone: a title, what is held fixed, white ground, common fonts, own colours", async () => {
    const { text, width, height } = paperOf(await curve(), "en");
    const read = new DOMParser().parseFromString(text, "image/svg+xml");
    expect(read.querySelector("parsererror")).toBeNull();
    const svg = read.querySelector("svg")!;
    expect(svg.getAttribute("viewBox")).toBe(`0 0 ${width} ${height}`);
    expect(svg.getAttribute("font-family")).toContain("Arial");
    expect(svg.querySelector("rect")!.getAttribute("fill")).toBe("#ffffff");
    expect(text).toMatch(/^<\?xml version="1.0" encoding="UTF-8"\?>\n<svg[^>]*xmlns="http:\/\/www.w3.org\/2000\/svg"/);
    expect(text).not.toMatch(/currentColor|system-ui|var\(--|<style/);
    expect(svg.textContent).toContain("One-way analysis of variance: overall F test");
    expect(svg.textContent).toContain("group means 10, 12, 15; standard deviation 6; significance level 0.05");
  });
});

describe("PNG for a paper", () => {
  it("tells that an inch has 300 pixels", () => {
    const chunk = densityChunk(300);
    const view = new DataView(chunk.buffer);
    expect(view.getUint32(0)).toBe(9);
    expect(new TextDecoder().decode(chunk.subarray(4, 8))).toBe("pHYs");
    expect([view.getUint32(8), view.getUint32(12), chunk[16]]).toEqual([11811, 11811, 1]);
    expect(view.getUint32(17)).toBe(crc32(chunk.subarray(4, 17)));
  });
  it("computes the checksum of the PNG specification", () => {
    expect(crc32(new TextEncoder().encode("IEND"))).toBe(0xae426082);
    expect(crc32(new TextEncoder().encode("123456789"))).toBe(0xcbf43926);
  });
  it("puts the density between the header and the rest", () => {
    const png = Uint8Array.from({ length: 60 }, (_, i) => i);
    const made = withDensity(png, 300);
    expect([...made.subarray(0, 33)]).toEqual([...png.subarray(0, 33)]);
    expect([...made.subarray(33, 54)]).toEqual([...densityChunk(300)]);
    expect([...made.subarray(54)]).toEqual([...png.subarray(33)]);
  });
});

describe("a download", () => {
  it("has its name and its content", async () => {
    const clicked: HTMLAnchorElement[] = [];
    const blobs: Blob[] = [];
    vi.spyOn(HTMLAnchorElement.prototype, "click").mockImplementation(function (this: HTMLAnchorElement) {
      clicked.push(this);
    });
    vi.spyOn(URL, "createObjectURL").mockImplementation((blob) => {
      blobs.push(blob as Blob);
      return "blob:it";
    });
    download("n,power\n", "a.csv", "text/csv");
    expect(clicked[0]!.download).toBe("a.csv");
    expect(clicked[0]!.href).toBe("blob:it");
    expect(await blobs[0]!.text()).toBe("n,power\n");
    expect(document.querySelectorAll("a")).toHaveLength(0);
  });
});
