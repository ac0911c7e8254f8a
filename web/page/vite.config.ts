import { defineConfig } from "vite";
import { viteSingleFile } from "vite-plugin-singlefile";

import { licences } from "./licences";
import { contentSecurityPolicy } from "./policy";

// `vite build` makes a folder for a server; with KELPOWER_SINGLE_FILE it makes one file that opens from the disk.
export default defineConfig(() => {
  const isSingle = process.env["KELPOWER_SINGLE_FILE"] === "1";
  return {
    base: "./",
    esbuild: { jsx: "automatic" as const, jsxImportSource: "preact" },
    plugins: [
      ...(isSingle ? [viteSingleFile({ removeViteModuleLoader: true })] : []),
      licences(),
      contentSecurityPolicy(),
    ],
    build: {
      target: "es2022",
      outDir: isSingle ? "../../build/web/single" : "../../build/web/site",
      emptyOutDir: true,
      modulePreload: false,
      chunkSizeWarningLimit: 2500,
    },
  };
});
