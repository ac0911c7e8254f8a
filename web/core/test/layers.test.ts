import { readdirSync, readFileSync } from "node:fs";
import { dirname, join, relative } from "node:path";
import { fileURLToPath } from "node:url";

import { expect, it } from "vitest";

const WEB = fileURLToPath(new URL("../..", import.meta.url));

/** What each room of the sources may import from besides itself: packages, and other rooms of the page. */
const ROOMS: Record<string, RegExp> = {
  "core/src": /^(?:node:worker_threads|#thread)$/,
  "page/src/pictures": /^(?:kelpower|preact\/?.*|@observablehq\/plot|d3.*|page\/src\/save)$/,
  "page/src/save": /^(?:kelpower|preact\/?.*|page\/src\/(?:save|pictures))$/,
  "page/src": /^(?:kelpower|preact\/?.*|@preact\/signals|page\/src.*)$/,
};

const IMPORT = /^(?:import|export)\b(?:[^"';]*\bfrom)? "([^"]+)"/gm;

interface Import {
  readonly file: string;
  readonly from: string;
}

/** The imports of all sources but tests; a path is told by its folder. */
function importsOf(room: string): Import[] {
  const entries = readdirSync(join(WEB, room), { withFileTypes: true, recursive: true });
  const files = entries
    .filter((entry) => entry.isFile() && /(?<!\.test)\.tsx?$/.test(entry.name))
    .map((entry) => join(entry.parentPath, entry.name));
  return files.flatMap((file) => {
    const names = [...readFileSync(file, "utf8").matchAll(IMPORT)].map((match) => match[1] ?? "");
    const place = (name: string) => relative(WEB, dirname(join(dirname(file), name)));
    return names.map((name) => ({ file: relative(WEB, file), from: name.startsWith(".") ? place(name) : name }));
  });
}

it.each(Object.entries(ROOMS))("%s imports what it may", (room, allowed) => {
  const imports = importsOf(room);
  expect(imports.length).toBeGreaterThan(5);
  const rooms = Object.keys(ROOMS).filter((other) => other.startsWith(`${room}/`));
  const own = imports.filter(({ file }) => !rooms.some((other) => file.startsWith(`${other}/`)));
  const strays = own.filter(({ from }) => from !== room && !allowed.test(from));
  expect(strays.map(({ file, from }) => `${file} imports ${from}`)).toEqual([]);
});
