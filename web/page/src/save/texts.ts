/** The words of the study plan. */
export const planTexts = {
  title: "Study plan",
  answer: "Answer",
  inputs: "What was given",
  results: "What follows",
  assumptions: "Taken for granted:",
  explanation: "How it is computed",
  otherPrograms: "The same question elsewhere",
  differs: "its answer differs",
  references: "References",
  again: "The same answer from the program:",
  program: (version: string) => `kelpower ${version}, statistical power analysis, computed in the browser.`,
};
