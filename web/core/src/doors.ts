import createModule, { type Module } from "./glue.js";

/** A function of the C interface that takes a text and answers with one. */
export type Door = "solve" | "draw" | "convert";

/** The C interface in texts, for the thread that it is in. */
export interface Doors {
  readonly version: string;
  describe(): string;
  ask(door: Door, request: string): string;
}

/** A fault that no request should cause. */
export class Fault extends Error {
  override name = "Fault";
}

const encoder = new TextEncoder();
const decoder = new TextDecoder();

function textAt(kel: Module, address: number): string {
  return decoder.decode(kel.HEAPU8.subarray(address, kel.HEAPU8.indexOf(0, address)));
}

function allocate(kel: Module, size: number): number {
  const address = kel._malloc(size);
  if (address === 0) throw new Fault("There is not enough memory.");
  return address;
}

/** The request is followed by a zero and, at a multiple of four, by the address of the answer. */
function ask(kel: Module, door: Door, request: string): string {
  const bytes = encoder.encode(request);
  const place = (bytes.length + 4) & ~3;
  const start = allocate(kel, place + 4);
  try {
    kel.HEAPU8.set(bytes, start);
    kel.HEAPU8[start + bytes.length] = 0;
    kel[`_kelplan_${door}`](start, 0, start + place);
    const answer = kel.HEAPU32[(start + place) >> 2] ?? 0;
    const text = textAt(kel, answer);
    kel._kelplan_free(answer);
    return text;
  } finally {
    kel._free(start);
  }
}

function describe(kel: Module): string {
  const address = kel._kelplan_describe();
  if (address === 0) throw new Fault("There is not enough memory.");
  return textAt(kel, address);
}

/** Starts the compiled module in this thread. */
export async function openDoors(compiled: WebAssembly.Module): Promise<Doors> {
  const kel = await createModule({
    instantiateWasm(imports, done) {
      WebAssembly.instantiate(compiled, imports).then((instance) => done(instance, compiled));
      return {};
    },
  });
  return {
    version: textAt(kel, kel._kelplan_version()),
    describe: () => describe(kel),
    ask: (door, request) => ask(kel, door, request),
  };
}
