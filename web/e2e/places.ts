import { createReadStream, existsSync, statSync } from "node:fs";
import { createServer, type Server } from "node:http";
import type { AddressInfo } from "node:net";
import { extname, join, normalize } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";

const BUILT = fileURLToPath(new URL("../../build/web", import.meta.url));
export const SINGLE_FILE = join(BUILT, "kelpower.html");
const SITE = join(BUILT, "site");
const TYPES: Record<string, string> = {
  ".html": "text/html",
  ".js": "text/javascript",
  ".css": "text/css",
  ".svg": "image/svg+xml",
};

/** Where the page can be opened from. */
export interface Place {
  readonly name: string;
  readonly address: string;
  /** Whether a request is for the page itself. */
  owns(address: string): boolean;
  close(): void;
}

export function fromDisk(): Place {
  const address = pathToFileURL(SINGLE_FILE).href;
  return { name: "the disk", address, owns: (other) => other.split("#")[0] === address, close: () => {} };
}

function serve(): Server {
  return createServer((request, response) => {
    const path = normalize(join(SITE, new URL(request.url ?? "/", "http://page").pathname));
    const file = path.endsWith("/") ? join(path, "index.html") : path;
    if (!file.startsWith(SITE) || !existsSync(file) || !statSync(file).isFile()) {
      response.writeHead(404).end();
      return;
    }
    response.writeHead(200, { "Content-Type": TYPES[extname(file)] ?? "application/octet-stream" });
    createReadStream(file).pipe(response);
  });
}

export async function fromServer(): Promise<Place> {
  const server = serve();
  await new Promise<void>((done) => server.listen(0, "127.0.0.1", done));
  const address = `http://127.0.0.1:${(server.address() as AddressInfo).port}/`;
  return { name: "a server", address, owns: (other) => other.startsWith(address), close: () => void server.close() };
}
