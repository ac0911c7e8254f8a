const NUMBER = /-?\d+(?:\.\d+)?(?:e[-+]?\d+)?/gi;

function areClose(one: number, other: number, relative: number): boolean {
  return one === other || Math.abs(one - other) <= relative * Math.max(Math.abs(one), Math.abs(other));
}

/** How far apart two numbers are whose last written digits differ by one. Of whole ones every digit counts. */
function lastDigit(text: string): number {
  const [, digits = "", power = "0"] = /^-?\d+(?:\.(\d+))?(?:e([-+]?\d+))?$/i.exec(text) ?? [];
  if (!digits) return 0;
  return 10 ** (Number(power) - digits.length);
}

function areSameNumbers(one: string, other: string, relative: number): boolean {
  const difference = Math.abs(Number(one) - Number(other));
  return (
    areClose(Number(one), Number(other), relative) || difference <= 1.001 * Math.max(lastDigit(one), lastDigit(other))
  );
}

/** Texts are the same but for the last digits of their numbers. */
function areSameTexts(one: string, other: string, relative: number): boolean {
  if (one === other) return true;
  if (one.replace(NUMBER, "#") !== other.replace(NUMBER, "#")) return false;
  const [ours, theirs] = [one.match(NUMBER) ?? [], other.match(NUMBER) ?? []];
  return ours.every((text, i) => areSameNumbers(text, theirs[i] as string, relative));
}

/**
 * The densities of a picture are difference quotients of probabilities at a thousandth of their width, where a difference
 * of these grows a thousandfold.
 */
const HEIGHTS = /\/densities\/(?:without|with)$/;

function areSameHeights(one: readonly number[], other: readonly number[], relative: number): boolean {
  const highest = Math.max(...one);
  return (
    one.length === other.length &&
    one.every((each, i) => Math.abs(each - (other[i] as number)) <= 1e3 * relative * highest)
  );
}

/** Where two values of JSON differ by more than a relative difference of numbers, or undefined. */
export function difference(one: unknown, other: unknown, relative: number, path = ""): string | undefined {
  const told = `${path}: ${JSON.stringify(one)} and ${JSON.stringify(other)}`;
  if (typeof one === "number" && typeof other === "number") return areClose(one, other, relative) ? undefined : told;
  if (typeof one === "string" && typeof other === "string")
    return areSameTexts(one, other, relative) ? undefined : told;
  if (typeof one !== "object" || typeof other !== "object" || !one || !other) return one === other ? undefined : told;
  if (HEIGHTS.test(path)) return areSameHeights(one as number[], other as number[], relative) ? undefined : told;
  const [ours, theirs] = [one as Record<string, unknown>, other as Record<string, unknown>];
  if (Object.keys(ours).join() !== Object.keys(theirs).join()) return told;
  for (const key of Object.keys(ours)) {
    const found = difference(ours[key], theirs[key], relative, `${path}/${key}`);
    if (found) return found;
  }
  return undefined;
}
