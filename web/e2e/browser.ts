import { existsSync } from "node:fs";

import { chromium, type Browser, type BrowserContextOptions, type Page } from "playwright-core";

import type { Place } from "./places";

const PROGRAMS = ["/usr/bin/chromium-headless-shell", "/usr/bin/chromium"];

export function startBrowser(): Promise<Browser> {
  const executablePath = PROGRAMS.find((path) => existsSync(path));
  if (!executablePath) throw new Error("Chromium is missing; tools/install_packages.sh web installs it.");
  return chromium.launch({ executablePath, args: ["--no-sandbox"] });
}

/** A page in a context of its own, with what went wrong in it. */
export interface Visit {
  readonly page: Page;
  /** Requests for anything but the page itself, and what its scripts complained of. */
  readonly faults: string[];
  close(): Promise<void>;
}

/** Opens the page at a state, "#two-means?power=0.8". */
export async function visit(
  browser: Browser,
  place: Place,
  state = "",
  options: BrowserContextOptions = {},
): Promise<Visit> {
  const context = await browser.newContext({ viewport: { width: 1280, height: 900 }, locale: "en-GB", ...options });
  const page = await context.newPage();
  const faults: string[] = [];
  page.on("request", (request) => {
    const address = request.url();
    if (!place.owns(address) && !/^(blob|data):/.test(address)) faults.push(`requests ${address}`);
  });
  page.on("websocket", (socket) => faults.push(`connects to ${socket.url()}`));
  page.on("pageerror", (error) => faults.push(error.message));
  page.on("console", (message) => message.type() === "error" && faults.push(message.text()));
  await page.goto(place.address + state);
  return { page, faults, close: () => context.close() };
}

/** Goes on to another state without loading the page anew. */
export async function goTo(page: Page, state: string): Promise<void> {
  await page.evaluate((hash) => (location.hash = hash), state);
}

export const byTestId = (page: Page, id: string) => page.locator(`[data-testid="${id}"]`);

/** Waits for the answer to be in a state, and gives its sentence. */
export async function answered(page: Page, state = "answered"): Promise<string> {
  await page.waitForSelector(`[data-testid="answer"][data-state="${state}"]`, { timeout: 30_000 });
  return state === "answered" ? ((await byTestId(page, "sentence").textContent()) ?? "").trim() : "";
}
