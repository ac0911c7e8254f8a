/** Colours of the pictures, those of Okabe and Ito for all kinds of colour vision. Dashes tell the same in grey. */

export type Theme = "light" | "dark";

export interface Palette {
  background: string;
  ink: string;
  faint: string;
  frame: string;
  grid: string;
  reference: string;
  design: string;
  curves: string[];
  /** Fillings from low to high power. */
  bands: string[];
  bandInk: string[];
  contour: string;
  level: string;
  power: string;
  missed: string;
}

const light: Palette = {
  background: "#ffffff",
  ink: "#222222",
  faint: "#555555",
  frame: "#555555",
  grid: "#dddddd",
  reference: "#777777",
  design: "#b03a2e",
  curves: ["#0072b2", "#d55e00", "#00805c", "#b0578f", "#333333", "#b87900"],
  bands: ["#f7fbff", "#deebf7", "#bcd7ec", "#8fbfe0", "#5f9fce", "#3b7fb8"],
  bandInk: ["#222222", "#222222", "#222222", "#222222", "#111111", "#ffffff"],
  contour: "#1d2b38",
  level: "#d55e00",
  power: "#9ecae1",
  missed: "#eef1f4",
};

const dark: Palette = {
  background: "#14181d",
  ink: "#e8eaed",
  faint: "#b4bac2",
  frame: "#9aa1aa",
  grid: "#343b44",
  reference: "#9aa1aa",
  design: "#ff8a75",
  curves: ["#56b4e9", "#ff9440", "#2fd0a0", "#e79ac6", "#d0d4d9", "#f0c04a"],
  bands: ["#1a222b", "#203446", "#264a66", "#2d6288", "#397dab", "#5a9bcb"],
  bandInk: ["#e8eaed", "#e8eaed", "#e8eaed", "#f4f6f8", "#ffffff", "#0b1218"],
  contour: "#dfe8f0",
  level: "#ff9440",
  power: "#2d6288",
  missed: "#222931",
};

export function paletteOf(theme: Theme): Palette {
  return theme === "dark" ? dark : light;
}

/** Of the curves, in the order of their colours. */
const dashes = ["none", "8,5", "8,4,2,4", "2,4", "12,4,2,4,2,4", "14,5"];

export function curveColour(palette: Palette, index: number): string {
  return palette.curves[index % palette.curves.length]!;
}

export function curveDash(index: number): string {
  return dashes[index % dashes.length]!;
}
