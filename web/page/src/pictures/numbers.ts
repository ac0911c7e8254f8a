/** Numbers as people write them, with the decimal sign of their language. */

const formats = new Map<string, Intl.NumberFormat>();

function formatOf(locale: string, options: Intl.NumberFormatOptions): Intl.NumberFormat {
  const key = locale + JSON.stringify(options);
  let format = formats.get(key);
  if (!format) {
    format = new Intl.NumberFormat(locale, { useGrouping: false, ...options });
    formats.set(key, format);
  }
  return format;
}

/** At most so many significant digits: 0.8015, 64, 12.35. */
export function shown(value: number, locale: string, digits = 4): string {
  if (!Number.isFinite(value)) return "–";
  const size = Math.abs(value);
  if (size !== 0 && (size < 1e-4 || size >= 1e10)) {
    const [digitsOf, power] = value.toExponential(digits - 1).split("e") as [string, string];
    return withMinus(`${Number(digitsOf)}e${Number(power)}`.replace(".", decimalSign(locale)));
  }
  // The digits before the decimal sign are never rounded away.
  const whole = size < 1 ? 1 : Math.floor(Math.log10(size)) + 1;
  return withMinus(formatOf(locale, { maximumSignificantDigits: Math.max(digits, whole) }).format(value));
}

/** A minus sign is as wide as the plus sign; a hyphen is not. */
const withMinus = (text: string) => text.replaceAll("-", "\u2212");

/** A power, which is rounded down where rounding up would make a certainty of it. */
export function shownPower(power: number, locale: string): string {
  const twoDigits = formatOf(locale, { minimumFractionDigits: 2, maximumFractionDigits: 2 });
  if (power < 0.995 || power === 1) return twoDigits.format(power);
  if (power > 0.9999) return "> " + formatOf(locale, { minimumFractionDigits: 4 }).format(0.9999);
  return formatOf(locale, { maximumFractionDigits: 4 }).format(Math.floor(power * 1e4) / 1e4);
}

export function decimalSign(locale: string): string {
  return formatOf(locale, { minimumFractionDigits: 1 }).format(0.5).replace(/[0-9]/g, "");
}

/** 1, 2 or 5 times a power of ten, and at least `least`. */
export function roundStep(least: number): number {
  if (!(least > 0) || !Number.isFinite(least)) return 1;
  const power = 10 ** Math.floor(Math.log10(least));
  for (const factor of [1, 2, 5]) {
    if (factor * power >= least * (1 - 1e-9)) return clean(factor * power);
  }
  return clean(10 * power);
}

/** The multiple of a step next to a value, without the dust of binary arithmetic. */
export function toStep(value: number, step: number): number {
  return clean(Math.round(value / step) * step);
}

function clean(value: number): number {
  return Number(value.toPrecision(12));
}

/** The number with the fewest decimals that is above `above` and at most `atMost`: what people would have written. */
export function shortestBetween(above: number, atMost: number): number {
  for (let decimals = 0; decimals <= 12; ++decimals) {
    const scale = 10 ** decimals;
    const candidate = Number((Math.floor(atMost * scale * (1 + 1e-15)) / scale).toFixed(decimals));
    if (candidate > above && candidate <= atMost) return candidate;
  }
  return atMost;
}

/** The number with the fewest decimals that is at least `atLeast` and below `below`. */
export function shortestFrom(atLeast: number, below: number): number {
  return -shortestBetween(-below, -atLeast);
}
