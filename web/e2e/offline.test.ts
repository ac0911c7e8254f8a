import { readFileSync } from "node:fs";
import { gzipSync } from "node:zlib";

import type { Browser } from "playwright-core";
import { afterAll, beforeAll, describe, expect, it } from "vitest";

import { answered, startBrowser, visit } from "./browser";
import { fromDisk, fromServer, SINGLE_FILE, type Place } from "./places";

const STUDY = "#two-means?effect-d=0.5&power=0.8";

let browser: Browser;
let places: Place[];
beforeAll(async () => {
  browser = await startBrowser();
  places = [fromDisk(), await fromServer()];
});
afterAll(async () => {
  await browser.close();
  places.forEach((place) => place.close());
});

/** The directives of the page's content security policy. */
function policy(): Map<string, string[]> {
  const html = readFileSync(SINGLE_FILE, "utf8");
  const content = /<meta http-equiv="Content-Security-Policy" content="([^"]*)"/.exec(html)?.[1] ?? "";
  const directives = content.split(";").map((directive) => directive.trim().split(/\s+/));
  return new Map(directives.map(([name = "", ...sources]) => [name, sources]));
}

describe("the one file", () => {
  it("is small enough to be sent about", () => {
    const bytes = readFileSync(SINGLE_FILE);
    expect(bytes.length).toBeLessThanOrEqual(2_200_000);
    expect(gzipSync(bytes, { level: 9 }).length).toBeLessThanOrEqual(900_000);
  });

  it("has all that it needs", () => {
    const html = readFileSync(SINGLE_FILE, "utf8");
    expect(html).not.toMatch(/<script[^>]*\ssrc=/);
    expect(html).not.toMatch(/<link[^>]*\srel="(?:stylesheet|modulepreload)"/);
  });

  it("has a policy that allows nothing from outside", () => {
    const directives = policy();
    expect(directives.get("default-src")).toEqual(["'none'"]);
    expect(directives.get("connect-src")).toEqual(["'none'"]);
    expect(directives.get("form-action")).toEqual(["'none'"]);
    expect(directives.get("base-uri")).toEqual(["'none'"]);
    const inside = /^(?:'none'|'self'|'unsafe-inline'|'wasm-unsafe-eval'|'sha256-[^']*'|blob:|data:)$/;
    for (const sources of directives.values()) for (const source of sources) expect(source).toMatch(inside);
    expect(directives.get("script-src")).not.toContain("'unsafe-inline'");
  });
});

describe("the page", () => {
  it("answers wherever it is opened, and asks for nothing but itself", async () => {
    for (const place of places) {
      const { page, faults, close } = await visit(browser, place, STUDY);
      expect(await answered(page), place.name).toContain("needs 64 observations in each of 2 groups");
      expect(faults, place.name).toEqual([]);
      await close();
    }
  });

  it("may not ask for anything, even if a script of it tried", async () => {
    for (const place of places) {
      const { page, faults, close } = await visit(browser, place, STUDY);
      await answered(page);
      const refused = await page.evaluate(async () => {
        const directives: string[] = [];
        document.addEventListener("securitypolicyviolation", (event) => directives.push(event.effectiveDirective));
        await fetch("http://127.0.0.1:9/").catch(() => {});
        new Image().src = "http://127.0.0.1:9/picture.png";
        document.head.append(Object.assign(document.createElement("script"), { src: "http://127.0.0.1:9/script.js" }));
        document.head.append(
          Object.assign(document.createElement("link"), { rel: "stylesheet", href: "http://127.0.0.1:9/s.css" }),
        );
        document.body.append(Object.assign(document.createElement("iframe"), { src: "http://127.0.0.1:9/" }));
        navigator.sendBeacon("http://127.0.0.1:9/", "data");
        try {
          new WebSocket("ws://127.0.0.1:9/");
        } catch {
          // Some browsers throw.
        }
        await new Promise((done) => setTimeout(done, 300));
        return directives.sort();
      });
      expect(new Set(refused)).toEqual(
        new Set(["connect-src", "frame-src", "img-src", "script-src-elem", "style-src-elem"]),
      );
      expect(
        refused.filter((directive) => directive === "connect-src"),
        place.name,
      ).toHaveLength(3);
      expect(
        faults.filter((fault) => fault.startsWith("connects")),
        place.name,
      ).toEqual([]);
      await close();
    }
  });
});
