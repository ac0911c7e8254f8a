// All of the page's own texts. What is said of tests and their inputs comes from the core.

/** How numbers are written: as in the sentences of the core. */
export const locale = "en";

export const texts = {
  name: "kelpower",
  skip: "Skip to the main part",
  privacy: "Computed in this browser. Nothing leaves this computer.",
  loading: "Loading the planner …",
  loadFailed: "The planner could not be started in this browser.",
  version: (version: string) => `kelpower ${version}`,

  start: {
    title: "How many subjects does your study need?",
    lead: "Plan the sample size, see the power of a sample that you have, or how precise an estimate will be.",
    search: "What do you want to find out?",
    searchHelp: "In your own words, such as: before and after, two groups, a difference of 5 with SD 10",
    guide: "Or answer three questions",
    measure: "What is measured?",
    groups: "Of whom?",
    aim: "To what end?",
    any: "Any",
    clear: "Clear all",
    list: "Tests",
    count: (shown: number, all: number) =>
      shown === all ? `All ${all} tests` : shown === 1 ? "One test fits" : `${shown} of ${all} tests fit`,
    none: (word: string) =>
      word
        ? `Nothing here is known by “${word}”. There are tests of means, ranks, variances, proportions, categories, correlations and linear regression.`
        : "No test fits all three answers. Take one of them back.",
    given: (words: string) => `Opens with ${words}`,
  },

  measures: {
    number: { label: "A number for each subject", help: "blood pressure, a score, a weight: their mean" },
    rank: { label: "Ordered categories or ranks", help: "none, mild, severe; numbers that are far from normal" },
    spread: { label: "How much numbers vary", help: "a standard deviation: of a device, of a process" },
    yesNo: { label: "Yes or no for each subject", help: "cured, relapsed, passed: a share" },
    category: { label: "One of several categories", help: "blood groups, answers to choose from: their shares" },
    relation: { label: "How measurements go together", help: "a correlation, or predictors of an outcome" },
  },
  /** Headings of the list of tests. */
  kinds: {
    number: "Means",
    rank: "Ranks and ordered categories",
    spread: "Variances",
    yesNo: "Proportions",
    category: "Categories",
    relation: "Correlations and regression",
  },
  groups: {
    one: { label: "One group", help: "compared with a fixed value, or on its own" },
    pairs: { label: "The same subjects repeatedly", help: "before and after, several visits, matched pairs" },
    two: { label: "Two groups", help: "different subjects, such as treated and control" },
    more: { label: "Three groups or more", help: "different subjects" },
  },
  aims: {
    compare: { label: "Test an effect", help: "is there a difference or a relation?" },
    margin: { label: "Test against a margin", help: "non-inferiority, equivalence, superiority by a margin" },
    estimate: { label: "Estimate a value", help: "how large is it, plus or minus?" },
  },

  test: {
    all: "All tests",
    question: "What do you want to know?",
    solveFor: "Number to find",
    forPower: "that gives a power",
    forHalfWidth: "that gives a half-width",
    aim: "What do you want to show?",
    form: "How do you want to give the effect?",
    formOfEstimate: "What do you know?",
    example: "Fill in an example",
    reset: "Clear",
  },

  /** What a test shows that is asked for nothing besides its effect. */
  aimOfTest: { label: "an effect", help: "show that there is one, of whatever size" },

  questions: {
    "sample-size": { label: "How many do I need?", help: "sample size for a power" },
    power: { label: "Is my sample enough?", help: "power of a sample size" },
    sought: { label: "What can I detect?", help: "effect for a sample and a power" },
    "half-width": { label: "How precise will it be?", help: "half-width of the interval" },
    "sample-size-for-half-width": { label: "How many for this precision?", help: "size for a half-width" },
  } as Readonly<Record<string, { label: string; help: string }>>,

  form: {
    effect: "What you expect",
    estimate: "What you know",
    size: "Sample",
    target: "What you aim for",
    option: "Test and interval",
    study: "Before the study",
    studyHelp: "dropout, several comparisons, clusters and more",
    given: (count: number) => (count === 1 ? "1 given" : `${count} given`),
    same: "the same in each group",
    group: (number: number) => `Group ${number}`,
    entry: (number: number) => `Number ${number}`,
    pair: ["First", "Second"],
    addGroup: "Add a group",
    removeGroup: "Remove the last group",
    eachGroup: "group",
    row: "row",
    column: "column",
    factors: (factors: readonly number[]) => `Factor${factors.length > 1 ? "s" : ""} ${factors.join(", ")}`,
    /** A level of each of some factors, by their numbers. */
    level: (factors: readonly number[], levels: readonly number[]) =>
      factors.map((factor, i) => `Factor ${factor}: ${levels[i]}`).join(", "),
    cell: (row: string, column: string) => `${row}, ${column}`,
    add: (each: string) => `Add a ${each}`,
    removeLast: (each: string) => `Remove the last ${each}`,
    tableHelp: "a table can be pasted into the first cell",
    asUsual: "As usual",
    optional: "optional",
    listHelp: "several numbers with spaces or semicolons between them",
    unclear: (text: string) =>
      `“${text}” can be read in two ways. Write ${text.replace(",", "")} for a thousand, or ${text.replace(",", ".")} for a decimal.`,
    usual: "0.8 and 0.9 are usual",
  },

  /** How limits are said, after the help of a field. */
  limits: {
    range: (from: string, to: string) => `${from} to ${to}`,
    between: (from: string, to: string) => `between ${from} and ${to}`,
    atLeast: (from: string) => `${from} or more`,
    above: (from: string) => `above ${from}`,
    atMost: (to: string) => `${to} or less`,
    below: (to: string) => `below ${to}`,
    preset: (value: string) => `${value} unless you say otherwise`,
  },

  answer: {
    title: "Answer",
    empty: "The answer appears here while you type.",
    lacks: (names: string[]) => `Still needed: ${names.join(", ")}.`,
    computing: "Computing …",
    searching: "This one takes longer: an exact search looks at many sample sizes.",
    seconds: (count: number) => `${count} s`,
    stop: "Stop",
    stopped: "Stopped. Change an input, or start again.",
    failed: "The planner has failed at this design, which is a fault of its own.",
    again: "Start again",
    copy: "Copy sentence",
    copyShort: "Copy",
    copied: "Copied",
    copyFailed: "Copying is not allowed here. Mark the text and copy it by hand.",
    behind: "What is behind the answer",
    results: "Results",
    inputs: "Inputs",
    notes: "Good to know",
    assumes: "Takes for granted",
    explanation: "How this is computed",
    figures: "Figures behind it",
    formula: "Formula",
    source: "Source",
    programs: "Other programs",
    same: "same answer",
    differs: "differs",
    calls: "The same elsewhere",
    callsHelp: "The same design, asked of the program or of the modules for Python and R.",
    program: "Command line",
    python: "Python",
    r: "R",
    copyCall: (name: string) => `Copy the call for ${name}`,
    problem: "No answer yet",
    toField: (label: string) => `Go to: ${label}`,
    perGroup: (size: string, groups: number) => `${size} in each of ${groups} groups`,
    eachOf: (sizes: string[]) => `groups of ${sizes.slice(0, -1).join(", ")} and ${sizes.at(-1)}`,
    enrol: (size: string) => `enrol ${size} in all, as some will be lost`,
    reached: (power: string) => `power ${power} at this size`,
    reachedWidth: (width: string) => `half-width ${width} at this size`,
    powerWords: (hundred: number) =>
      hundred >= 100
        ? "If the effect is as you say, nearly every such study would detect it."
        : hundred < 1
          ? "If the effect is as you say, hardly any such study would detect it."
          : `If the effect is as you say, about ${hundred} of 100 such studies would detect it.`,
    widthWords: (width: string) => `The interval reaches about ${width} to either side of the estimate.`,
    soughtWords: (power: string) => `At this value the power is ${power}.`,
    soughtWidthWords: (width: string) => `At this value the half-width is ${width}.`,
  },

  words: {
    title: "Words used here",
    list: [
      [
        "Power",
        "The probability that the study finds the effect, if it is as large as you say. 0.8 means 8 of 10 such studies.",
      ],
      ["Significance level", "The probability of finding an effect where there is none. 0.05 is usual."],
      [
        "Effect size",
        "How large the effect is, in units that do not depend on the scale. The effect size d counts standard deviations.",
      ],
      [
        "Standard deviation",
        "How much single values differ from each other; usually known from a pilot or a published study.",
      ],
      ["Half-width", "The plus or minus of an estimate: half of the width of its confidence interval."],
      ["Two-sided", "The effect may go in either direction. One-sided tests look in one direction only."],
    ],
  },

  actions: {
    link: "Copy link",
    keep: "Add to comparison",
    kept: "Added to the comparison.",
    print: "Print study plan",
  },

  compare: {
    title: "Designs side by side",
    name: "Name",
    test: "Test",
    asked: "Given",
    answer: "Answer",
    power: "Power",
    total: "Total size",
    open: "Open",
    remove: "Remove",
    openNamed: (name: string) => `Open ${name}`,
    removeNamed: (name: string) => `Remove ${name}`,
    rename: (name: string) => `Name of ${name}`,
    design: (number: number) => `Design ${number}`,
    none: "–",
    save: "Save all",
    load: "Load designs",
    loadHelp: "Files that this page or the program saved with --save.",
    loaded: (count: number) => (count === 1 ? "One design loaded." : `${count} designs loaded.`),
    notLoaded: "This file holds no designs that can be read.",
  },

  convert: {
    title: (label: string) => `Work out the ${label} from published results`,
    what: "What is reported?",
    choose: "Choose …",
    use: (value: string, label: string) => `Use ${value} as ${label}`,
    interval: "confidence interval",
    used: "Filled in.",
    result: "Effect sizes",
  },
} as const;

/**
 * Where inputs stand that a question can do without: beside the effect, with the sample, or under "Before the study". What
 * is not listed stands with the options of the test.
 */
export const places: Readonly<Record<string, "effect" | "size" | "study">> = {
  "test-value": "effect",
  null: "effect",
  tested: "effect",
  "r-squared-reduced": "effect",
  covariates: "effect",
  "r-squared": "effect",
  correlation: "effect",
  epsilon: "effect",
  "f-of": "effect",
  pair: "effect",
  group: "effect",
  "all-comparisons": "effect",
  parent: "effect",
  ratio: "size",
  ratios: "size",
  comparisons: "study",
  dropout: "study",
  "cluster-size": "study",
  icc: "study",
  "cluster-cv": "study",
  population: "study",
  assurance: "study",
  "effect-sd": "study",
};

/** What a new design begins with besides the defaults of the core. */
export const suggestions: Readonly<Record<string, string>> = { power: "0.8" };

/** Help that the page adds to that of the core. */
export const addedHelp: Readonly<Record<string, string>> = { power: texts.form.usual };
