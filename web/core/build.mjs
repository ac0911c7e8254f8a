// Makes the package in dist/ of the sources in src/ and of the WebAssembly module.
// Usage: node build.mjs [FOLDER of kelplan.mjs and kelplan.wasm]
import { execFileSync } from "node:child_process";
import { copyFileSync, mkdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { dirname, join, resolve } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";

import { build } from "esbuild";

const here = dirname(fileURLToPath(import.meta.url));
const module = resolve(process.argv[2] ?? join(here, "../../build/wasm/web/core"));
const dist = join(here, "dist");

function writeText(name, text) {
  writeFileSync(join(dist, name), `export default ${JSON.stringify(text)};\n`);
}

function compileTypeScript() {
  const tsc = createRequire(import.meta.url).resolve("typescript/bin/tsc");
  execFileSync(process.execPath, [tsc, "--project", here], { stdio: "inherit" });
}

async function bundleWorker() {
  const bundle = await build({
    entryPoints: [join(dist, "worker.js")],
    bundle: true,
    minify: true,
    format: "iife",
    target: "es2022",
    write: false,
  });
  return bundle.outputFiles[0].text;
}

/** The description of the tests never changes, so a program need not wait until the module has made it. */
async function describe() {
  const load = (name) => import(pathToFileURL(join(dist, name)).href);
  const { compiledModule } = await load("compile.js");
  const { openDoors } = await load("doors.js");
  return (await openDoors(await compiledModule())).describe();
}

rmSync(dist, { recursive: true, force: true });
mkdirSync(dist);
copyFileSync(join(here, "../../LICENSE"), join(dist, "LICENSE"));
copyFileSync(join(here, "NOTICE.txt"), join(dist, "NOTICE.txt"));
copyFileSync(join(module, "kelplan.mjs"), join(dist, "glue.js"));
writeText("wasm.js", gzipSync(readFileSync(join(module, "kelplan.wasm")), { level: 9 }).toString("base64"));
compileTypeScript();
writeText("worker_source.js", await bundleWorker());
writeText("description.js", await describe());
for (const name of ["glue", "wasm", "worker_source", "description"]) {
  copyFileSync(join(here, "src", `${name}.d.ts`), join(dist, `${name}.d.ts`));
}
