/** The module, compressed by gzip and written in base64. */
declare const wasm: string;
export default wasm;
