/** The words of the pictures, in one place. Names of inputs and titles of axes come from the descriptions. */

export const texts = {
  pictures: "Pictures",
  kinds: {
    curve: "Along one input",
    contour: "Over two inputs",
    densities: "What power is",
    saw: "Exact test",
    interval: "Interval",
  },
  across: "Across",
  up: "Up",
  show: "Show",
  compare: "Several curves",
  compareNone: "no",
  compareValues: (label: string) => `Values of ${label}`,
  compareHint: "separated by spaces or semicolons",
  move: "Move",
  drawing: "Drawing …",
  reset: "Fit the picture to the design",
  table: "The numbers as a table",
  saveAs: "Save as",
  saveThePicture: "Save the picture",
  svg: "SVG",
  png: "PNG",
  csv: "CSV",
  singlePlace: (axis: string) => `there is an answer at a single value of the ${axis}.`,
  notDrawn: "This picture cannot be drawn: ",
  unknownReason: "the reason is not known.",
  oneDesign: "Several designs are asked for at once. A picture of one design appears when each input has one value.",
  dragHint: "Drag the dot, or move it with the arrow keys.",
  dragHintSurface: "Drag the dot, or move it with the arrow keys: left and right, up and down.",
  design: "design",
  designs: "designs",
  target: "target",
  power: "power",
  halfWidth: "half-width",
  sampleSize: "sample size",
  quantity: { power: "power", "half-width": "half-width", "sample-size": "sample size" },
  quantityChoice: {
    power: "the power at the sizes found",
    "half-width": "the half-width at the sizes found",
    "sample-size": "the sample size needed",
  },
  quantityTitle: { power: "power", "half-width": "half-width of the interval", "sample-size": "sample size" },
  statistic: { t: "test statistic t", F: "test statistic F", normal: "test statistic z", count: "number of successes" },
  statisticShort: { t: "t", F: "F", normal: "z", count: "count" },
  withoutEffect: "if there is no effect",
  withEffect: "with the effect planned for",
  levelArea: (level: string) => `rejected though there is no effect: ${level}`,
  powerArea: (power: string) => `effect found, the power: ${power}`,
  missedArea: (missed: string) => `effect missed: ${missed}`,
  critical: "critical value",
  density: "density",
  probability: "probability",
  attainedLevel: "level attained",
  and: "and",
  ofFirstGroup: "n of the first group",
  nominalLevel: (level: string) => `level planned: ${level}`,
  middle: "distance from the middle of the interval, in units of the data",
  oneSd: "one standard deviation",
  thisDesign: "this design",
  yes: "yes",
  no: "no",
  each: "each",
  withSize: "With",
  atValue: "At",
  perGroup: "per group",
  inTotal: "in total",
  inFirstGroup: "in the first group",
  inGroup: (number: string) => `in group ${number}`,
  confidence: (percent: string) => `confidence ${percent}%`,
  twoSided: "two-sided",
  oneSided: "one-sided",
  smoothed: "The power goes up and down along the sizes: beyond a line it stays at or above that power.",
};

const inHundred = (share: number): string => {
  const count = 100 * share;
  if (count > 99.5) return "almost all";
  if (count < 0.5) return "hardly any";
  return `about ${Math.round(count)}`;
};

/** Sentences under the pictures, in plain words. All numbers come as texts. */
export const sentences = {
  powerAt: (place: string, power: number, shownPower: string) =>
    `${place} the power is ${shownPower}: of 100 such studies, ${inHundred(power)} would find the effect.`,
  reaches: (power: string, place: string) => `A power of ${power} takes ${place}.`,
  reachesLast: (power: string, place: string) => `It stays at ${power} or above from ${place} on.`,
  notReached: (power: string) => `A power of ${power} is not reached in this picture.`,
  half: (place: string, power: string) => `${place} it would be ${power}.`,
  slope: (place: string, power: string) => `${place} it would be ${power}.`,
  halfWidthAt: (place: string, width: string) => `${place} the interval reaches ${width} to either side of its middle.`,
  fourTimes: (place: string, width: string) =>
    `${place}, four times as many, it would reach about half as far: ${width}.`,
  twice: (place: string, width: string) => `${place} it would reach ${width}.`,
  sizeAt: (place: string, size: string) => `${place} the study needs ${size}.`,
  sizeElse: (place: string, size: string) => `${place} it would need ${size}.`,
  curve: (label: string, place: string, value: string) => `${label}: ${place}, ${value}.`,
  curvesOf: (quantity: string, title: string, varied: string) =>
    `The ${quantity} across the ${title}, a curve for each ${varied}.`,
  surface: (power: string, place: string, at: string) => `${place} a power of ${power} is reached where the ${at}.`,
  surfaceIs: (title: string, value: string) => `${title} is ${value}`,
  surfaceDesign: (place: string, power: string) => `${place} the power is ${power}.`,
  surfaceLines: "Designs along a line have the same power.",
  densities: (statistic: string, where: string, level: number, power: number) =>
    `If there is no effect, the ${statistic} falls ${where} in ${inHundred(level)} of 100 studies: these are the false alarms that the significance level allows. ` +
    `With the effect planned for it falls there in ${inHundred(power)} of 100: that is the power. The others miss the effect.`,
  beyondBoth: (low: string, high: string) => `below ${low} or above ${high}`,
  above: (high: string) => `above ${high}`,
  below: (low: string) => `below ${low}`,
  countBoth: (low: string, high: string) => `to ${low} or less, or to ${high} or more,`,
  countAbove: (high: string) => `to ${high} or more`,
  countBelow: (low: string) => `to ${low} or less`,
  saw: (place: string, attained: string, level: string, power: string) =>
    `${place} the test attains a level of ${attained}, where ${level} is planned, and a power of ${power}.`,
  sawWhy: "Counts are whole, so the level that is attained jumps with the sample size, and the power jumps with it.",
  sawFalls: (from: string, to: string, before: string, after: string) =>
    `One more can be worse: from ${from} to ${to} the power falls from ${before} to ${after}.`,
  interval: (place: string, width: string, confidence: string) =>
    `${place} the ${confidence}% confidence interval reaches ${width} to either side of its middle.`,
  intervalRule: "To halve it takes about four times the sample size.",
};
