/** What the pictures need of the core's requests and answers. */

export type Value = boolean | number | string | number[];

/** Inputs by name, in the program's words. An array in the place of one value gives alternatives. */
export type Inputs = Record<string, unknown>;

export interface Design {
  test: string;
  inputs: Inputs;
}

export interface Limits {
  minimum?: number;
  maximum?: number;
  "exclusive-minimum"?: number;
  "exclusive-maximum"?: number;
  whole?: boolean;
}

export interface Parameter {
  name: string;
  kind: string;
  label: string;
  meaning?: string;
  limits?: Limits;
  choices?: string[];
  wordings?: Record<string, string>;
}

export interface DescribedAxis {
  name: string;
  title: string;
  symbol: string;
  limits: Limits;
}

/** The description of a test, as far as pictures and the study plan use it. */
export interface Test {
  name: string;
  title: string;
  groups: number | string;
  counted: string;
  parameters: Parameter[];
  axes: DescribedAxis[];
  routes?: { results: { name: string; label: string }[] }[];
  sources?: unknown;
}

export interface Answer {
  test: string;
  version?: string;
  question: Question;
  inputs: Record<string, Value>;
  assumptions?: Record<string, string>;
  results: Record<string, Value>;
  sentence: string;
  note?: string;
  details?: {
    figures: Record<string, number | null>;
    formula: string;
    source: string;
    programs: { program: string; call: string; same: boolean; remark?: string }[];
  };
  densities?: Densities | null;
  calls?: { program: string; python: string; r: string };
}

export type Question = "power" | "sample-size" | "half-width" | "sample-size-for-half-width";

export interface Row {
  inputs: Record<string, Value>;
  results?: Record<string, Value | null>;
  error?: Problem;
}

export interface Table {
  test: string;
  question: Question;
  inputs: Record<string, Value>;
  rows: Row[];
}

export interface Densities {
  statistic: "t" | "F" | "normal" | "count";
  "rejects-to"?: number;
  "rejects-from"?: number;
  level: number;
  power: number;
  x: number[];
  without: number[];
  with: number[];
}

export type Quantity = "power" | "half-width" | "sample-size";

export interface Chart {
  test: string;
  chart: string;
  axes: { name: string; title: string }[];
  quantity: Quantity;
  x: number[];
  y?: number[];
  varied?: string;
  curves: ChartCurve[];
}

export type ChartCurve = {
  inputs: Record<string, Value>;
  design?: { at: number[] } & Record<string, unknown>;
} & Record<string, unknown>;

export interface Problem {
  kind: string;
  code: string;
  message: string;
}

export interface Failure {
  error: Problem;
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
