// Written by types.mjs from the schemas in capi/schema.

export interface Replies {
  Answer?: Answer;
  Table?: Table;
  Chart?: Chart;
  Conversion?: Conversion;
  Description?: Description;
  Failure?: Failure;
}
/**
 * The reply of kelplan_solve to one design.
 */
export interface Answer {
  schema: 1;
  version: string;
  test: string;
  question: "power" | "sample-size" | "half-width" | "sample-size-for-half-width";
  /**
   * by name, defaults included; a target to reach is target-power or target-half-width
   */
  inputs: {
    [k: string]: boolean | number | string | number[];
  };
  /**
   * what the answer takes for granted, by name
   */
  assumptions?: {
    [k: string]: string;
  };
  /**
   * by name
   */
  results: {
    [k: string]: boolean | number | string | number[];
  };
  sentence: string;
  note?: string;
  /**
   * the function of kelpower.h that answers, where there is one
   */
  export?: string;
  details?: Details;
  /**
   * where the request has densities; null where the power is not that of one statistic
   */
  densities?: Densities | null;
  /**
   * where the request has text: the answer as the program prints it
   */
  text?: string;
  /**
   * where the request has calls: how each front end is asked the same
   */
  calls?: {
    program: string;
    python: string;
    r: string;
  };
}
/**
 * where the request has explain
 */
export interface Details {
  /**
   * by name
   */
  figures: {
    [k: string]: number | null;
  };
  formula: string;
  source: string;
  programs: {
    program: string;
    call: string;
    same: boolean;
    remark?: string;
  }[];
}
export interface Densities {
  statistic: "t" | "F" | "normal" | "count";
  /**
   * the test rejects at this value and below
   */
  "rejects-to"?: number;
  /**
   * and at this one and above
   */
  "rejects-from"?: number;
  /**
   * the area where it rejects, without the effect
   */
  level: number;
  /**
   * and with it
   */
  power: number;
  x: number[];
  without: number[];
  with: number[];
}
/**
 * The reply of kelplan_solve to alternatives.
 */
export interface Table {
  schema: 1;
  version: string;
  test: string;
  question: "power" | "sample-size" | "half-width" | "sample-size-for-half-width";
  /**
   * those that all rows share
   */
  inputs: {
    [k: string]: boolean | number | string | number[];
  };
  columns: {
    name: string;
    label: string;
    /**
     * a figure has a scale of its own; sizes are counts, one for each group; a size is a count
     */
    kind: "figure" | "sizes" | "size" | "power" | "half-width";
    entry?: number;
  }[];
  rows: {
    [k: string]: unknown;
  }[];
  /**
   * the function of kelpower.h that answers, where there is one
   */
  export?: string;
}
/**
 * The reply of kelplan_draw.
 */
export interface Chart {
  schema: 1;
  version: string;
  test: string;
  chart: string;
  axes: {
    name: string;
    title: string;
  }[];
  quantity: "power" | "half-width" | "sample-size";
  x: number[];
  /**
   * of a surface
   */
  y?: number[];
  /**
   * the input that has a value for each curve
   */
  varied?: string;
  curves: {
    /**
     * of the design
     */
    inputs: {
      [k: string]: boolean | number | string | number[];
    };
    design?: {
      at: number[];
      [k: string]: unknown;
    };
    /**
     * the function of kelpower.h that answers, where there is one
     */
    export?: string;
    [k: string]: unknown;
  }[];
  /**
   * where the request has picture: what a picture of the chart says
   */
  picture?: {
    title: string;
    /**
     * what the chart holds fixed
     */
    fixed: string[];
    /**
     * the title of the axis of values
     */
    values: string;
    /**
     * what tells each curve from the others
     */
    curves: string[];
    /**
     * place and value of each design; empty where it lies outside
     */
    designs: string[];
    /**
     * of a surface: the lines of equal power
     */
    levels?: {
      power: number;
      lines: {
        x: number[];
        y: number[];
      }[];
    }[];
    /**
     * what the lines mean, where the power goes up and down
     */
    note?: string;
    /**
     * the chart in words
     */
    description: string;
  };
}
/**
 * The reply of kelplan_convert.
 */
export interface Conversion {
  schema: 1;
  version: string;
  test: "effect";
  question: "effect-sizes";
  /**
   * by name, defaults included
   */
  inputs: {
    [k: string]: boolean | number | string | number[];
  };
  /**
   * effect sizes by name, each with -lower and -upper where its interval is known; use is how the program takes them
   */
  results: {
    use?: string;
    [k: string]: unknown;
  };
  sentence: string;
  note?: string;
  /**
   * where the request has explain: of each effect size
   */
  details?: {
    [k: string]: {
      formula: string;
      source: string;
    };
  };
  /**
   * where the request has text: the answer as the program prints it
   */
  text?: string;
}
/**
 * What kelplan_describe tells.
 */
export interface Description {
  schema: 1;
  version: string;
  tests: Test[];
  effects: Effects;
}
export interface Test {
  name: string;
  title: string;
  about: string;
  "when-not"?: string;
  /**
   * k: as many as the inputs give
   */
  groups: 1 | 2 | "k";
  "group-names"?: string[];
  counted: string;
  parameters: Parameter[];
  routes: {
    question: "power" | "sample-size" | "half-width" | "sample-size-for-half-width";
    needs: string[];
    accepts: string[];
    results: {
      name: string;
      label: string;
      /**
       * a figure has a scale of its own; sizes are counts, one for each group; a size is a count
       */
      kind: "figure" | "sizes" | "size" | "power" | "half-width";
      /**
       * some answers lack it
       */
      optional?: true;
    }[];
    /**
     * the function of kelpower.h that answers, where there is one
     */
    export?: string;
    "one-sided-export"?: string;
  }[];
  unknowns: {
    name: string;
    target: "power" | "sample-size" | "half-width" | "sample-size-for-half-width";
    trend: "rises" | "falls";
    reason: string;
    below: boolean;
  }[];
  conditions: {
    code: string;
    about: string[];
    sentence: string;
  }[];
  /**
   * conditions without which no size reaches a power
   */
  "size-exists": {
    code: string;
    about: string[];
    sentence: string;
  }[];
  derived: {
    name: string;
    label: string;
    needs: string[];
  }[];
  assumptions: {
    name: string;
    label: string;
    needs: string[];
  }[];
  sources: string[];
  examples: Example[];
  axes: {
    name: string;
    title: string;
    symbol: string;
    limits: {
      minimum?: number;
      maximum?: number;
      "exclusive-minimum"?: number;
      "exclusive-maximum"?: number;
      whole?: true;
    };
    usual?: {
      from: number;
      to: number;
    };
  }[];
}
export interface Parameter {
  name: string;
  aliases: string[];
  kind: "number" | "flag" | "choice" | "list" | "per-group";
  label: string;
  meaning: string;
  unit?: string;
  limits: {
    minimum?: number;
    maximum?: number;
    "exclusive-minimum"?: number;
    "exclusive-maximum"?: number;
    whole?: true;
  };
  /**
   * of an input whose numbers do not vary along a chart: layout says what is tested, shape also decides how long lists are, and varies from row to row neither
   */
  role?: "layout" | "shape";
  /**
   * of a list that is a table, row by row: the input that says how many rows it has
   */
  rows?: string;
  /**
   * of a list that is a table, row by row: the input that says how many columns it has
   */
  columns?: string;
  length?: number;
  /**
   * one number stands for every group
   */
  spreads?: boolean;
  choices?: string[];
  /**
   * of each choice in a sentence
   */
  wordings?: {
    [k: string]: string;
  };
  default?: boolean | number | string | number[];
}
export interface Example {
  arguments: string;
  /**
   * by name
   */
  inputs: {
    [k: string]: boolean | number | string | number[];
  };
  sentence: string;
}
/**
 * what kelplan_convert does
 */
export interface Effects {
  name: string;
  title: string;
  about: string;
  parameters: Parameter[];
  conversions: {
    title: string;
    needs: string[];
    accepts: string[];
    /**
     * effect sizes, by name
     */
    gives: string[];
    /**
     * inputs of tests that take them; several effect sizes are the entries of a list
     */
    uses: {
      test: string;
      input: string;
      effects: string[];
    }[];
  }[];
  "effect-sizes": {
    name: string;
    label: string;
    formulas: {
      /**
       * the effect size that it starts from, unless it is from the inputs
       */
      from?: string;
      needs: string[];
      formula: string;
      source: string;
      note?: string;
    }[];
  }[];
  examples: Example[];
}
/**
 * The reply to what cannot be answered.
 */
export interface Failure {
  schema: 1;
  version: string;
  error: Problem;
}
export interface Problem {
  /**
   * whose fault it is; request: of the JSON and not of an input
   */
  kind: "input" | "no-solution" | "stopped" | "memory" | "request" | "fault";
  /**
   * a word that never changes
   */
  code: string;
  /**
   * the code of the condition that fails, of the description of the test
   */
  condition?: string;
  /**
   * the first of the parameters
   */
  parameter?: string;
  parameters: string[];
  /**
   * the one that is not allowed
   */
  value?: boolean | number | string | number[];
  /**
   * what is, in words
   */
  allowed?: string;
  /**
   * the ways to complete the inputs
   */
  missing?: string[][];
  /**
   * one sentence in the names of the request's style
   */
  message: string;
  /**
   * the sentence with the names of inputs in braces
   */
  template?: string;
}
