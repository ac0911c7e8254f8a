/** A value of an input; null stands for one that is not given. */
export type InputValue = number | boolean | string | readonly number[] | null;

export type Inputs = Readonly<Record<string, InputValue>>;

export interface SolveRequest {
  /** The name of the test. */
  readonly test: string;
  /**
   * The inputs by name. What is left out is what is solved for: power and no n asks for the sample size. An array for
   * an input that takes one value, or an array of arrays for a list, gives alternatives, which `tabulate` answers.
   */
  readonly inputs?: Readonly<Record<string, InputValue | readonly (boolean | string | readonly number[])[]>>;
  /** How names are spelt in the answer: effect-d, as by default, or effect_d. */
  readonly names?: "dash" | "underscore";
  /** Adds the figures behind the answer, the formula and its source. */
  readonly explain?: boolean;
  /** Adds the distributions of the test statistic. */
  readonly densities?: boolean;
  /** Adds the same call of the program, of Python and of R. */
  readonly calls?: boolean;
  /** Adds the table that the program prints. */
  readonly text?: boolean;
}

export interface DrawRequest {
  readonly test: string;
  /** As of a design. One input may have several values, a curve for each. */
  readonly inputs?: SolveRequest["inputs"];
  /** An axis of the test, or two with a hyphen between them. */
  readonly chart: string;
  /** The range, unless it is the usual one: a number for each axis. */
  readonly from?: number | readonly number[];
  readonly to?: number | readonly number[];
  /** The share of the range between neighbouring points. */
  readonly step?: number | readonly number[];
  /** Shows the sizes that reach the target. */
  readonly y?: "n";
  readonly names?: "dash" | "underscore";
}

export interface ConvertRequest {
  /** Published results by name. */
  readonly inputs: Inputs;
  readonly names?: "dash" | "underscore";
  readonly explain?: boolean;
}
