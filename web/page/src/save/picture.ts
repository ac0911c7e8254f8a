import type { Picture } from "../pictures/build";
import { csvOf } from "./csv";
import { download } from "./download";
import { pngOf } from "./png";
import { paperOf } from "./svg";

export type PictureFormat = "svg" | "png" | "csv";

/** Saves a picture fit for a paper: 6.67 inches wide, on white, the pixels at 300 dots an inch. */
export async function savePicture(picture: Picture, format: PictureFormat, locale = "en"): Promise<void> {
  const name = `kelpower-${picture.name}.${format}`;
  if (format === "csv") return download(csvOf(picture.numbers()), name, "text/csv;charset=utf-8");
  const paper = paperOf(picture, locale);
  if (format === "svg") return download(paper.text, name, "image/svg+xml;charset=utf-8");
  download(await pngOf(paper), name, "image/png");
}
