import { readdirSync, readFileSync } from "node:fs";
import { join } from "node:path";

import type { Plugin } from "vite";

const PACKAGE = /^.*\/node_modules\/(?:@[^/]+\/)?[^/]+(?=\/)/;

/** The licences of the packages, each once, with the names of those that it is of, and those of the module's parts. */
function textOf(folders: Iterable<string>): string {
  const names = new Map<string, string[]>();
  for (const folder of folders) {
    const { name } = JSON.parse(readFileSync(join(folder, "package.json"), "utf8")) as { name: string };
    const file = readdirSync(folder).find((each) => /^licen[cs]e/i.test(each));
    if (!file) throw new Error(`${name} has no licence.`);
    const text = readFileSync(join(folder, file), "utf8").trim();
    names.set(text, [...(names.get(text) ?? []), name]);
  }
  const parts = [...names].map(([text, of]) => `${of.sort().join(", ")}\n\n${text}`).sort();
  parts.push(readFileSync(new URL("../core/NOTICE.txt", import.meta.url), "utf8").trim());
  return `This page contains parts of other packages.\n\n${parts.join("\n\n---\n\n")}\n`;
}

/** Puts the licences of all packages that are in the page at its end. */
export function licences(): Plugin {
  const folders = new Set<string>();
  return {
    name: "licences",
    apply: "build",
    renderChunk(_code, { modules }) {
      for (const file of Object.keys(modules)) {
        const folder = PACKAGE.exec(file)?.[0];
        if (folder) folders.add(folder);
      }
      return null;
    },
    generateBundle: {
      order: "post", // After the page is among the files.
      handler(_options, bundle) {
        const text = textOf(folders);
        if (text.includes("--" + ">")) throw new Error("A licence would end its comment.");
        for (const file of Object.values(bundle)) {
          if (file.type !== "asset" || !file.fileName.endsWith(".html")) continue;
          file.source = `${String(file.source).trimEnd()}\n<!--\n${text}-->\n`;
        }
      },
    },
  };
}
