import type { NumbersTable } from "../pictures/numbers_of";

function field(text: string): string {
  return /[",\n\r]/.test(text) ? `"${text.replaceAll('"', '""')}"` : text;
}

/** Numbers in full, with a decimal point, as programs read them. A gap is an empty field. */
export function csvOf({ columns, rows }: NumbersTable): string {
  const lines = rows.map((row) => row.map((value) => (value === null ? "" : String(value))).join(","));
  return [columns.map(field).join(","), ...lines, ""].join("\n");
}
