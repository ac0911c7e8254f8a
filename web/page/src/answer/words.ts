// The figures of an answer in words and in the order in which people want them.

import type { Answer, Route, Test } from "../contract";
import { labelOf } from "../form/words";
import { showCount, showFigure, showPower } from "../numbers";
import { texts } from "../texts";

export interface Row {
  name: string;
  label: string;
  text: string;
}

export interface Headline {
  label: string;
  text: string;
  /** Smaller lines under the number. */
  under: string[];
}

type Result = Route["results"][number];
type Kind = Result["kind"];

function resultsOf(test: Test, answer: Answer): Result[] {
  const route = test.routes.find((one) => {
    const known = new Set(one.results.map(({ name }) => name));
    const given = Object.keys(answer.results).filter((name) => name !== answer.inputs["solve"]);
    return one.question === answer.question && given.every((name) => known.has(name));
  });
  const same = test.routes.filter(({ question }) => question === answer.question);
  return route?.results ?? same.flatMap(({ results }) => results);
}

function allEqual(values: readonly number[]): boolean {
  return values.every((value) => value === values[0]);
}

export function showValue(value: unknown, kind: Kind | undefined): string {
  if (Array.isArray(value)) return value.map((one) => showValue(one, kind)).join(", ");
  if (typeof value === "boolean") return value ? "yes" : "no";
  if (typeof value !== "number") return String(value);
  if (kind === "size" || kind === "sizes") return showCount(value);
  return kind === "power" ? showPower(value) : showFigure(value);
}

/** The rows of the results, in the order of the answer. */
export function resultRows(test: Test, answer: Answer): Row[] {
  const known = resultsOf(test, answer);
  return Object.entries(answer.results).map(([name, value]) => {
    const result = known.find((one) => one.name === name);
    return { name, label: result?.label ?? labelOf(test, name), text: showValue(value, result?.kind) };
  });
}

export function inputRows(test: Test, answer: Answer): Row[] {
  return Object.entries(answer.inputs)
    .filter(([name]) => name !== "solve" && name !== "interval")
    .map(([name, value]) => {
      const parameter = test.parameters.find((one) => one.name === name);
      const text =
        parameter?.kind === "choice"
          ? (parameter.wordings?.[String(value)] ?? String(value))
          : showValue(value, undefined);
      return { name, label: labelOf(test, name), text };
    });
}

export function assumptionRows(test: Test, answer: Answer): Row[] {
  return Object.entries(answer.assumptions ?? {}).map(([name, text]) => ({
    name,
    label: test.assumptions.find((one) => one.name === name)?.label ?? name,
    text: String(text),
  }));
}

function numbersOf(value: unknown): number[] {
  return Array.isArray(value) ? (value as number[]) : typeof value === "number" ? [value] : [];
}

function sizeLines(answer: Answer): string[] {
  const sizes = numbersOf(answer.results["n"]);
  if (sizes.length < 2) return [];
  return [
    allEqual(sizes)
      ? texts.answer.perGroup(showCount(sizes[0] ?? 0), sizes.length)
      : texts.answer.eachOf(sizes.map(showCount)),
  ];
}

function enrolLine(answer: Answer): string[] {
  const enrol = numbersOf(answer.results["enrol-total"] ?? answer.results["enrol"]);
  return enrol.length === 1 ? [texts.answer.enrol(showCount(enrol[0] ?? 0))] : [];
}

function powerOf(answer: Answer): number | undefined {
  return numbersOf(answer.results["power"] ?? answer.results["expected-power"])[0];
}

function sizeHeadline(test: Test, answer: Answer, known: readonly Result[]): Headline {
  const result = known.find(({ name }) => name === "total") ?? known.find(({ name }) => name === "n");
  const name = result?.name ?? "n";
  const power = powerOf(answer);
  const width = numbersOf(answer.results["half-width"])[0];
  const under = [...sizeLines(answer), ...enrolLine(answer)];
  if (answer.question === "sample-size" && power !== undefined) under.push(texts.answer.reached(showPower(power)));
  if (answer.question !== "sample-size" && width !== undefined)
    under.push(texts.answer.reachedWidth(showFigure(width)));
  const label = name === "total" ? (result?.label ?? name) : `${result?.label ?? name} (${test.counted})`;
  return { label, text: showValue(answer.results[name], "size"), under };
}

function soughtHeadline(test: Test, answer: Answer, sought: string): Headline {
  const width = numbersOf(answer.results["half-width"])[0];
  const power = powerOf(answer);
  const under =
    sought === "assurance"
      ? []
      : width !== undefined
        ? [texts.answer.soughtWidthWords(showFigure(width))]
        : power !== undefined
          ? [texts.answer.soughtWords(showPower(power))]
          : [];
  const value = answer.results[sought];
  const kind = resultsOf(test, answer).find(({ name }) => name === sought)?.kind;
  return { label: labelOf(test, sought), text: showValue(value, kind), under };
}

/** The one number that was asked for. */
export function headlineOf(test: Test, answer: Answer, sought: string | undefined): Headline {
  const known = resultsOf(test, answer);
  if (sought !== undefined && sought in answer.results) return soughtHeadline(test, answer, sought);
  if (answer.question === "sample-size" || answer.question === "sample-size-for-half-width")
    return sizeHeadline(test, answer, known);
  if (answer.question === "half-width") {
    const width = numbersOf(answer.results["half-width"])[0] ?? Number.NaN;
    return {
      label: known.find(({ kind }) => kind === "half-width")?.label ?? "",
      text: showFigure(width),
      under: [texts.answer.widthWords(showFigure(width))],
    };
  }
  const name = "power" in answer.results ? "power" : "expected-power";
  const power = powerOf(answer) ?? Number.NaN;
  return {
    label: known.find((one) => one.name === name)?.label ?? name,
    text: showPower(power),
    under: [texts.answer.powerWords(power > 0.995 ? 100 : Math.round(100 * power))],
  };
}
