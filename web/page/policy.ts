import { createHash } from "node:crypto";

import type { Plugin } from "vite";

/** Nothing is loaded from anywhere but the page itself, and nothing is sent. A picture that is saved passes by a blob. */
function policy(scripts: string[]): string {
  return [
    "default-src 'none'",
    `script-src ${scripts.join(" ")} 'wasm-unsafe-eval'`,
    "worker-src blob:",
    "style-src 'self' 'unsafe-inline'",
    "img-src blob: data:",
    "connect-src 'none'",
    "base-uri 'none'",
    "form-action 'none'",
  ].join("; ");
}

function hashesOf(html: string): string[] {
  const scripts = [...html.matchAll(/<script\b[^>]*>([\s\S]*?)<\/script>/g)].map((match) => match[1] ?? "");
  return scripts
    .filter((script) => script)
    .map((script) => `'sha256-${createHash("sha256").update(script).digest("base64")}'`);
}

function withPolicy(html: string): string {
  const hashes = hashesOf(html);
  const meta = `<meta http-equiv="Content-Security-Policy" content="${policy(hashes.length ? hashes : ["'self'"])}" />`;
  const place = '<meta charset="utf-8" />';
  if (!html.includes(place)) throw new Error(`The page has no ${place}.`);
  return html.replace(place, () => `${place}\n    ${meta}`);
}

/** Writes the content security policy into the page, which allows the scripts that are in it and those of its folder. */
export function contentSecurityPolicy(): Plugin {
  return {
    name: "content-security-policy",
    apply: "build",
    enforce: "post",
    generateBundle: {
      order: "post", // After the scripts are in the page.
      handler(_options, bundle) {
        for (const file of Object.values(bundle)) {
          if (file.type === "asset" && file.fileName.endsWith(".html")) file.source = withPolicy(String(file.source));
        }
      },
    },
  };
}
