// Numbers as people write them, and as the page shows them.

export type Reading = { value: number } | { unclear: string } | { text: string };

const grouped = /^[+-]?\d{1,3}([ '’\u00a0\u202f]\d{3})+([.,]\d+)?%?$/;
const plain = /^[+-]?(\d+([.,]\d*)?|[.,]\d+)(e[+-]?\d+)?%?$/i;
const bothMarks = /^[+-]?\d{1,3}(?:([.,])\d{3})(?:\1\d{3})*(?!\1)[.,]\d+%?$/;
const thousands = /^[+-]?[1-9]\d{0,2}(?:,\d{3})+$/;
const dottedThousands = /^[+-]?[1-9]\d{0,2}(?:\.\d{3}){2,}$/;

function valueOf(text: string): Reading {
  const percent = text.endsWith("%");
  const value = Number(percent ? text.slice(0, -1) : text);
  // 7% is 0.07 and not 0.07000000000000001.
  return { value: percent ? Number((value / 100).toPrecision(15)) : value };
}

/**
 * Reads a number with a decimal point or comma, a percentage, or digits in groups. Of a whole number "1,000" can only be
 * a thousand; of any other it has two meanings. What is no number is handed on as text, for the core to refuse.
 */
export function readNumber(typed: string, whole: boolean): Reading {
  const text = typed
    .trim()
    .replace(/[\u2212\u2013]/g, "-")
    .replace(/\s+%$/, "%");
  if (bothMarks.test(text)) {
    const decimal = text.lastIndexOf(",") > text.lastIndexOf(".") ? "," : ".";
    const digits = text.replaceAll(decimal === "," ? "." : ",", "");
    return valueOf(digits.replace(",", "."));
  }
  if (thousands.test(text)) {
    const digits = text.replaceAll(",", "");
    if (whole || text.indexOf(",") !== text.lastIndexOf(",")) return valueOf(digits);
    return { unclear: text };
  }
  if (dottedThousands.test(text) || (whole && /^[+-]?[1-9]\d{0,2}\.\d{3}$/.test(text))) {
    return valueOf(text.replaceAll(".", ""));
  }
  if (grouped.test(text)) return valueOf(text.replace(/[ '’\u00a0\u202f]/g, "").replace(",", "."));
  if (plain.test(text)) return valueOf(text.replace(",", "."));
  return { text: typed.trim() };
}

/**
 * The entries of a list that was typed or pasted as one text. A comma separates them unless it may be a decimal mark,
 * which whole numbers have none of.
 */
export function splitList(text: string, whole = false): string[] {
  const trimmed = text.trim();
  if (trimmed === "") return [];
  const separator = /[;\t\n|]/.test(trimmed)
    ? /\s*[;\t\n|]\s*/
    : /,\s/.test(trimmed)
      ? /,\s+/
      : /\s/.test(trimmed)
        ? /\s+/
        : (whole && !thousands.test(trimmed)) || (trimmed.match(/,/g) ?? []).length > 1 || /\..*,|,.*\./.test(trimmed)
          ? ","
          : /$^/;
  return trimmed.split(separator).filter((entry) => entry !== "");
}

const wholeNumber = new Intl.NumberFormat("en", { maximumFractionDigits: 0 });

/** A count with its digits in groups from five digits on. */
export function showCount(value: number): string {
  return Math.abs(value) < 10000 ? String(value) : wholeNumber.format(value).replaceAll(",", "\u202f");
}

/** A figure with four significant digits. */
export function showFigure(value: number): string {
  if (Number.isInteger(value) && Math.abs(value) < 1e6) return String(value);
  const shown = Number(value.toPrecision(4));
  const size = Math.abs(shown);
  return size >= 1e6 || (size < 1e-4 && size > 0) ? shown.toExponential() : String(shown);
}

/** A probability with four decimals; one that would look certain is shown as a limit. */
export function showPower(value: number): string {
  if (value < 1 && value > 0.99995) return "above 0.9999";
  return value.toFixed(4);
}
