/** What the pictures need of the core's requests and answers. */

import type { Answer, Chart, Failure, Parameter, Problem, Table, Test } from "kelpower";

export type { Answer, Chart, Densities, Failure, Parameter, Problem, Table, Test } from "kelpower";

export type Value = boolean | number | string | number[];

/** Inputs by name, in the program's words. An array in the place of one value gives alternatives. */
export type Inputs = Record<string, unknown>;

export interface Design {
  test: string;
  inputs: Inputs;
}

export type Limits = Parameter["limits"];
export type DescribedAxis = Test["axes"][number];
export type Question = Answer["question"];
export type Quantity = Chart["quantity"];
export type ChartCurve = Chart["curves"][number];

/** A row of a table, which the schema leaves open: it has results or an error. */
export interface Row {
  inputs: Record<string, Value>;
  results?: Record<string, Value | null>;
  error?: Problem;
}

/** The computing core. An error of the inputs is an answer too. */
export interface Core {
  solve(request: object, options?: { signal?: AbortSignal | undefined }): Promise<unknown>;
  draw(request: object, options?: { signal?: AbortSignal | undefined }): Promise<unknown>;
}

export function isFailure(answer: unknown): answer is Failure {
  return typeof answer === "object" && answer !== null && "error" in answer;
}

export function isTable(answer: Answer | Table | Failure | null | undefined): answer is Table {
  return !!answer && "rows" in answer;
}

export function isNumbers(value: unknown): value is number[] {
  return Array.isArray(value) && value.every((entry) => typeof entry === "number");
}
