import { defineConfig } from "vitest/config";

export default defineConfig({
  esbuild: { jsx: "automatic", jsxImportSource: "preact" },
  test: {
    fileParallelism: false,
    projects: [
      { extends: true, test: { name: "core", include: ["core/test/*.test.ts"], testTimeout: 60_000 } },
      { extends: true, test: { name: "page", include: ["page/**/*.test.{ts,tsx}"], testTimeout: 60_000 } },
      { extends: true, test: { name: "e2e", include: ["e2e/*.test.ts"], testTimeout: 120_000, hookTimeout: 60_000 } },
    ],
  },
});
