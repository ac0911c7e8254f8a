/** A picture as one SVG: title, key and titles of axes around plots, with a name and a description for screen readers. */

import type { Palette } from "./palette";

export const fontOfScreen = "system-ui, -apple-system, 'Segoe UI', Roboto, 'Helvetica Neue', Arial, sans-serif";
/** There is one of these on every system, and in every program that edits figures. */
export const fontOfPaper = "Arial, Helvetica, 'Liberation Sans', sans-serif";

export interface Look {
  width: number;
  palette: Palette;
  locale: string;
  font: string;
  /** A picture that stands alone has a title, and says what is held fixed. */
  standsAlone: boolean;
}

export type KeySymbol =
  | { kind: "line"; stroke: string; dash?: string; width?: number }
  | { kind: "dot"; fill: string }
  | { kind: "area"; fill: string; stroke?: string };

export interface KeyEntry {
  symbol: KeySymbol;
  text: string;
}

/** One plot, with the titles of its axes. */
export interface Panel {
  plot: SVGSVGElement;
  width: number;
  height: number;
  yTitle?: string;
  xTitle?: string;
  /** Where the drawing begins and ends, between the margins. */
  left: number;
  right: number;
}

export interface Composition {
  name: string;
  description: string;
  title: string;
  subtitles: string[];
  key: KeyEntry[];
  panels: Panel[];
}

export interface Composed {
  svg: SVGSVGElement;
  width: number;
  height: number;
  /** The top of each panel's plot. */
  tops: number[];
}

const namespace = "http://www.w3.org/2000/svg";
export const fontSize = 13;
const lineHeight = 18;
const symbolWidth = 30;

export function element(name: string, attributes: Record<string, string | number>, text?: string): SVGElement {
  const made = document.createElementNS(namespace, name);
  for (const [key, value] of Object.entries(attributes)) made.setAttribute(key, String(value));
  if (text !== undefined) made.textContent = text;
  return made;
}

let canvas: CanvasRenderingContext2D | null | undefined;

/** In pixels; an estimate that is rather too wide where nothing can be measured. */
export function textWidth(text: string, size: number, font: string): number {
  if (canvas === undefined) {
    const made = typeof HTMLCanvasElement === "undefined" ? null : document.createElement("canvas");
    canvas = made && /jsdom/i.test(navigator.userAgent) ? null : (made?.getContext?.("2d") ?? null);
  }
  if (!canvas) return 0.56 * size * text.length;
  canvas.font = `${size}px ${font}`;
  return canvas.measureText(text).width;
}

/** Lines of words, each at most so wide. */
export function wrapped(text: string, width: number, size: number, font: string): string[] {
  const lines: string[] = [];
  for (const word of text.split(" ")) {
    const last = lines[lines.length - 1];
    const longer = last === undefined ? word : last + " " + word;
    if (last !== undefined && textWidth(longer, size, font) > width) lines.push(word);
    else lines[Math.max(0, lines.length - 1)] = longer;
  }
  return lines;
}

/** Pieces with a separator, in lines; a piece is broken only where it fills more than a line. */
export function piecesInLines(
  pieces: string[],
  separator: string,
  width: number,
  size: number,
  font: string,
): string[] {
  const lines: string[] = [];
  for (const piece of pieces) {
    const last = lines[lines.length - 1];
    if (last !== undefined && textWidth(last + separator + piece, size, font) <= width) {
      lines[lines.length - 1] = last + separator + piece;
    } else {
      lines.push(...wrapped(piece, width, size, font));
    }
  }
  return lines;
}

interface Pen {
  svg: SVGElement;
  look: Look;
  y: number;
}

function write(pen: Pen, text: string, x: number, attributes: Record<string, string | number> = {}): void {
  pen.svg.append(
    element("text", { x, y: pen.y, fill: pen.look.palette.ink, "font-size": fontSize, ...attributes }, text),
  );
}

function writeTitle(pen: Pen, title: string, subtitles: string[]): void {
  const { width, palette, font } = pen.look;
  for (const line of wrapped(title, width - 16, 16, font)) {
    pen.y += 22;
    write(pen, line, width / 2, { "text-anchor": "middle", "font-size": 16, "font-weight": 600 });
  }
  for (const line of piecesInLines(subtitles, "; ", width - 16, 12, font)) {
    pen.y += 17;
    write(pen, line, width / 2, { "text-anchor": "middle", "font-size": 12, fill: palette.faint });
  }
  pen.y += 8;
}

function drawSymbol(pen: Pen, symbol: KeySymbol, x: number): void {
  const middle = pen.y - 4.5;
  if (symbol.kind === "line") {
    const dash: Record<string, string> =
      symbol.dash && symbol.dash !== "none" ? { "stroke-dasharray": symbol.dash } : {};
    pen.svg.append(
      element("line", {
        x1: x,
        x2: x + 24,
        y1: middle,
        y2: middle,
        stroke: symbol.stroke,
        "stroke-width": symbol.width ?? 2.5,
        ...dash,
      }),
    );
  } else if (symbol.kind === "dot") {
    pen.svg.append(element("circle", { cx: x + 12, cy: middle, r: 5.5, fill: symbol.fill }));
  } else {
    const box = { x: x + 2, y: middle - 6, width: 20, height: 12 };
    pen.svg.append(element("rect", { ...box, fill: symbol.fill, stroke: symbol.stroke ?? "none" }));
  }
}

function writeKey(pen: Pen, key: KeyEntry[]): void {
  const { width, font } = pen.look;
  const gap = 18;
  let x = 8;
  pen.y += lineHeight;
  for (const entry of key) {
    const room = textWidth(entry.text, fontSize, font) + symbolWidth;
    if (x > 8 && x + room > width - 8) {
      x = 8;
      pen.y += lineHeight + 2;
    }
    drawSymbol(pen, entry.symbol, x);
    const lines = wrapped(entry.text, width - x - symbolWidth - 8, fontSize, font);
    lines.forEach((line, i) => {
      if (i > 0) pen.y += lineHeight;
      write(pen, line, x + symbolWidth);
    });
    x += room + gap;
  }
  pen.y += 6;
}

function drawPanel(pen: Pen, panel: Panel): number {
  const { font, palette, width } = pen.look;
  if (panel.yTitle) {
    for (const line of wrapped(panel.yTitle, width - 16, fontSize, font)) {
      pen.y += lineHeight;
      write(pen, line, 8, { fill: palette.faint });
    }
    pen.y += 2;
  }
  const top = pen.y;
  panel.plot.setAttribute("x", "0");
  panel.plot.setAttribute("y", String(top));
  pen.svg.append(panel.plot);
  pen.y = top + panel.height;
  if (panel.xTitle) {
    const middle = (panel.left + panel.right) / 2;
    for (const line of wrapped(
      panel.xTitle,
      Math.min(width - 16, 2 * Math.min(middle, width - middle)),
      fontSize,
      font,
    )) {
      pen.y += lineHeight - 2;
      write(pen, line, middle, { "text-anchor": "middle", fill: palette.faint });
    }
  }
  return top;
}

let compositions = 0;

/**
 * A plot names its parts, which have no roles, and takes fonts and colours from the page around. In a picture the whole
 * has a name, and brings them itself: programs that edit figures know no page.
 */
function asPartOfWhole(plot: SVGSVGElement, ink: string): void {
  for (const style of plot.querySelectorAll("style")) style.remove();
  const ofAPage = ["aria-label", "aria-hidden"];
  for (const part of plot.querySelectorAll("*")) {
    for (const attribute of ofAPage) part.removeAttribute(attribute);
    for (const attribute of ["fill", "stroke"]) {
      if (part.getAttribute(attribute) === "currentColor") part.setAttribute(attribute, ink);
    }
  }
  for (const attribute of [...ofAPage, "class", "viewBox", "style", "font-family", "font-size"]) {
    plot.removeAttribute(attribute);
  }
  plot.setAttribute("fill", ink);
}

export function compose(parts: Composition, look: Look): Composed {
  const id = `picture-${++compositions}`;
  const svg = element("svg", {
    xmlns: namespace,
    role: "img",
    "aria-labelledby": `${id}-name ${id}-text`,
    "font-family": look.font,
    "font-size": fontSize,
    fill: look.palette.ink,
    "font-variant-numeric": "tabular-nums",
  }) as SVGSVGElement;
  svg.append(
    element("title", { id: `${id}-name` }, parts.name),
    element("desc", { id: `${id}-text` }, parts.description),
  );
  const pen: Pen = { svg, look, y: 0 };
  if (look.standsAlone) {
    svg.append(element("rect", { width: "100%", height: "100%", fill: look.palette.background }));
    writeTitle(pen, parts.title, parts.subtitles);
  }
  if (parts.key.length) writeKey(pen, parts.key);
  const tops = parts.panels.map((panel) => {
    asPartOfWhole(panel.plot, look.palette.ink);
    return drawPanel(pen, panel);
  });
  const height = Math.ceil(pen.y + 8);
  svg.setAttribute("width", String(look.width));
  svg.setAttribute("height", String(height));
  svg.setAttribute("viewBox", `0 0 ${look.width} ${height}`);
  return { svg, width: look.width, height, tops };
}
