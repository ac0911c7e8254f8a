import wasm from "./wasm.js";

function bytesOf(base64: string): Uint8Array<ArrayBuffer> {
  const text = atob(base64);
  const bytes = new Uint8Array(text.length);
  for (let i = 0; i < text.length; i++) bytes[i] = text.charCodeAt(i);
  return bytes;
}

async function compile(): Promise<WebAssembly.Module> {
  const unpacked = new Blob([bytesOf(wasm)]).stream().pipeThrough(new DecompressionStream("gzip"));
  return WebAssembly.compile(await new Response(unpacked).arrayBuffer());
}

let compiled: Promise<WebAssembly.Module> | undefined;

/** The compiled module, which all threads of a program share. */
export function compiledModule(): Promise<WebAssembly.Module> {
  compiled ??= compile();
  return compiled;
}
