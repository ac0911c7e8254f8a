/** The loader that Emscripten writes. */
export interface Module {
  readonly HEAPU8: Uint8Array;
  readonly HEAPU32: Uint32Array;
  _malloc(size: number): number;
  _free(address: number): void;
  _kelplan_version(): number;
  _kelplan_describe(): number;
  _kelplan_solve(request: number, options: number, answer: number): number;
  _kelplan_draw(request: number, options: number, answer: number): number;
  _kelplan_convert(request: number, options: number, answer: number): number;
  _kelplan_free(answer: number): void;
}

export interface Settings {
  instantiateWasm(
    imports: WebAssembly.Imports,
    done: (instance: WebAssembly.Instance, module: WebAssembly.Module) => void,
  ): object;
}

export default function createModule(settings: Settings): Promise<Module>;
