/** A picture as a file: its own fonts and colours, and nothing that only a browser knows. */

import { fontOfPaper } from "../pictures/frame";
import type { Look } from "../pictures/frame";
import type { Picture } from "../pictures/build";
import { paletteOf } from "../pictures/palette";

/** In pixels of 1/96 inch: 6.67 inches, the width of a page without its margins. */
export const paperWidth = 640;

export const lookOfPaper = (locale: string): Look => ({
  width: paperWidth,
  palette: paletteOf("light"),
  locale,
  font: fontOfPaper,
  standsAlone: true,
});

export interface Paper {
  text: string;
  width: number;
  height: number;
}

export function paperOf(picture: Picture, locale: string): Paper {
  const { svg, width, height } = picture.draw(lookOfPaper(locale));
  const text = new XMLSerializer().serializeToString(svg);
  return { text: `<?xml version="1.0" encoding="UTF-8"?>\n${text}\n`, width, height };
}
