/** A picture as pixels, as many as a paper needs. */

import type { Paper } from "./svg";

const dotsPerInch = 300;
const pixelsPerInch = 96;
const metresPerInch = 0.0254;

const crcTable = Array.from({ length: 256 }, (_, n) => {
  let c = n;
  for (let k = 0; k < 8; ++k) c = c & 1 ? 0xedb88320 ^ (c >>> 1) : c >>> 1;
  return c >>> 0;
});

export function crc32(bytes: Uint8Array): number {
  let c = 0xffffffff;
  for (const byte of bytes) c = crcTable[(c ^ byte) & 0xff]! ^ (c >>> 8);
  return (c ^ 0xffffffff) >>> 0;
}

/** The chunk that tells how large a pixel is (PNG specification, 11.3.4.3). */
export function densityChunk(dots: number): Uint8Array {
  const chunk = new Uint8Array(21);
  const view = new DataView(chunk.buffer);
  const perMetre = Math.round(dots / metresPerInch);
  view.setUint32(0, 9);
  chunk.set([0x70, 0x48, 0x59, 0x73], 4); // pHYs
  view.setUint32(8, perMetre);
  view.setUint32(12, perMetre);
  chunk[16] = 1; // metres
  view.setUint32(17, crc32(chunk.subarray(4, 17)));
  return chunk;
}

/** Puts the density after the header, which always is the first chunk and 25 bytes long. */
export function withDensity(png: Uint8Array, dots: number): Uint8Array {
  const afterHeader = 8 + 25;
  const chunk = densityChunk(dots);
  const made = new Uint8Array(png.length + chunk.length);
  made.set(png.subarray(0, afterHeader), 0);
  made.set(chunk, afterHeader);
  made.set(png.subarray(afterHeader), afterHeader + chunk.length);
  return made;
}

async function imageOf(svg: string): Promise<HTMLImageElement> {
  const image = new Image();
  image.src = "data:image/svg+xml;charset=utf-8," + encodeURIComponent(svg);
  await image.decode();
  return image;
}

export async function pngOf(paper: Paper): Promise<Blob> {
  const scale = dotsPerInch / pixelsPerInch;
  const canvas = document.createElement("canvas");
  canvas.width = Math.round(paper.width * scale);
  canvas.height = Math.round(paper.height * scale);
  const context = canvas.getContext("2d")!;
  context.fillStyle = "#ffffff";
  context.fillRect(0, 0, canvas.width, canvas.height);
  context.drawImage(await imageOf(paper.text), 0, 0, canvas.width, canvas.height);
  const blob = await new Promise<Blob | null>((done) => canvas.toBlob(done, "image/png"));
  if (!blob) throw new Error("the browser made no picture");
  const bytes = withDensity(new Uint8Array(await blob.arrayBuffer()), dotsPerInch);
  return new Blob([bytes as Uint8Array<ArrayBuffer>], { type: "image/png" });
}
