import { readFileSync } from "node:fs";
import { createRequire } from "node:module";

import type { Page } from "playwright-core";

interface Violation {
  readonly id: string;
  readonly help: string;
  readonly nodes: readonly { readonly target: readonly string[]; readonly failureSummary: string }[];
}

const source = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

/** What axe finds in the page as it is now, by the rules of WCAG 2.2 A and AA and by good practice. */
export async function findings(page: Page): Promise<string[]> {
  await page.evaluate(source);
  const violations = await page.evaluate(async () => {
    const axe = (
      window as unknown as { axe: { run(where: Document, how: object): Promise<{ violations: Violation[] }> } }
    ).axe;
    const tags = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"];
    return (await axe.run(document, { runOnly: tags })).violations;
  });
  return violations.flatMap(({ id, nodes }) =>
    nodes.map((node) => `${id}: ${node.target.join(" ")}: ${node.failureSummary}`),
  );
}
