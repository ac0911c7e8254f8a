/** The plan of a study to print: question, answer, figure, explanation and references. */

import { render } from "preact";
import { labelOf, shownValue, parameterOf, capital } from "../pictures/caption";
import { load, offerFor } from "../pictures/load";
import { pictureOf } from "../pictures/build";
import { fontOfPaper } from "../pictures/frame";
import { isFailure } from "../pictures/model";
import type { Answer, Core, Design, Test, Value } from "../pictures/model";
import { shown } from "../pictures/numbers";
import { paletteOf } from "../pictures/palette";
import { planTexts } from "./texts";
import "./plan.css";

export interface PlanRequest {
  design: Design;
  answer: Answer;
  description: Test;
  kel: Core;
  locale?: string;
}

interface Plan {
  answer: Answer;
  test: Test;
  locale: string;
  figure: { svg: string; sentence: string } | null;
}

const widthOfFigure = 620;

function resultLabel(test: Test, name: string): string {
  for (const route of test.routes ?? []) {
    const result = route.results.find((one) => one.name === name);
    if (result) return result.label;
  }
  return labelOf(test, name);
}

function shownResult(value: Value, locale: string): string {
  if (typeof value === "number") return shown(value, locale, Number.isInteger(value) ? 12 : 4);
  return shownValue(undefined, value, locale);
}

function inputRows({ answer, test, locale }: Plan): [string, string][] {
  return Object.entries(answer.inputs).map(([name, value]) => {
    const isTarget = name.startsWith("target-");
    const known = isTarget && !parameterOf(test, name) ? name.slice("target-".length) : name;
    return [labelOf(test, known), shownValue(parameterOf(test, known), value, locale)];
  });
}

function resultRows({ answer, test, locale }: Plan): [string, string][] {
  return Object.entries(answer.results).map(([name, value]) => [resultLabel(test, name), shownResult(value, locale)]);
}

function Rows({ title, rows }: { title: string; rows: [string, string][] }) {
  return (
    <table>
      <caption>{title}</caption>
      <tbody>
        {rows.map(([label, value]) => (
          <tr key={label}>
            <th scope="row">{capital(label)}</th>
            <td>{value}</td>
          </tr>
        ))}
      </tbody>
    </table>
  );
}

function Explanation({ answer }: { answer: Answer }) {
  const { details } = answer;
  if (!details) return null;
  return (
    <section>
      <h2>{planTexts.explanation}</h2>
      <p class="formula">{details.formula}</p>
      {details.programs.length > 0 && (
        <>
          <h3>{planTexts.otherPrograms}</h3>
          <ul>
            {details.programs.map(({ program, call, same, remark }) => (
              <li key={program + call}>
                {program}: <code>{call}</code>
                {same ? "" : ` (${planTexts.differs})`}
                {remark ? ` – ${remark}` : ""}
              </li>
            ))}
          </ul>
        </>
      )}
    </section>
  );
}

export function StudyPlan(plan: Plan) {
  const { answer, test, figure } = plan;
  return (
    <article class="study-plan" aria-label={planTexts.title}>
      <header>
        <p class="kind">{planTexts.title}</p>
        <h1>{test.title}</h1>
        <p class="date">{new Date().toISOString().slice(0, 10)}</p>
      </header>
      <section>
        <h2>{planTexts.answer}</h2>
        <p class="statement">{answer.sentence}</p>
        {answer.note && <p>{answer.note}</p>}
        <div class="tables">
          <Rows title={planTexts.inputs} rows={inputRows(plan)} />
          <Rows title={planTexts.results} rows={resultRows(plan)} />
        </div>
        {answer.assumptions && (
          <p>
            {planTexts.assumptions}{" "}
            {Object.entries(answer.assumptions)
              .map(([name, value]) => `${name.replaceAll("-", " ")}: ${value}`)
              .join("; ")}
            .
          </p>
        )}
      </section>
      {figure && (
        <figure>
          <div dangerouslySetInnerHTML={{ __html: figure.svg }} />
          <figcaption>{figure.sentence}</figcaption>
        </figure>
      )}
      <Explanation answer={answer} />
      <section>
        <h2>{planTexts.references}</h2>
        <ul>
          {answer.details && <li>{answer.details.source}.</li>}
          <li>{planTexts.program(answer.version ?? "")}</li>
        </ul>
        {answer.calls && (
          <p>
            {planTexts.again} <code>{answer.calls.program}</code>
          </p>
        )}
      </section>
    </article>
  );
}

/** The figure that says most about a design: power along the sizes, or the intervals. */
async function figureOf(request: PlanRequest, locale: string): Promise<Plan["figure"]> {
  const { design, answer, description, kel } = request;
  try {
    const offer = await offerFor(kel, design, answer.question, description);
    const kind = offer.kinds[0];
    if (!kind) return null;
    const choice = { kind, axis: "n", up: "", showsSizes: false, compare: null };
    const loaded = await load(kel, design, answer.question, offer, choice, null);
    const picture = pictureOf({ test: description, loaded, given: design.inputs, moved: null, domain: null });
    if (!picture) return null;
    const look = { width: widthOfFigure, palette: paletteOf("light"), locale, font: fontOfPaper, standsAlone: false };
    return { svg: picture.draw(look).svg.outerHTML, sentence: picture.sentence(locale) };
  } catch {
    // A plan without a figure is still a plan.
    return null;
  }
}

const placeName = "plan-to-print";

/** Puts the plan into the document, where only the printer shows it. */
export async function buildPlan(request: PlanRequest): Promise<HTMLElement> {
  const { design, description, kel } = request;
  const locale = request.locale ?? "en";
  const explained = await kel.solve({ ...design, explain: true, calls: true, names: "dash" });
  const answer = isFailure(explained) ? request.answer : (explained as Answer);
  const figure = await figureOf({ ...request, answer }, locale);
  document.getElementById(placeName)?.remove();
  const place = document.createElement("div");
  place.id = placeName;
  document.body.append(place);
  render(<StudyPlan answer={answer} test={description} locale={locale} figure={figure} />, place);
  return place;
}

/** Prints the plan of a study. It leaves the document when it is printed. */
export async function planToPrint(request: PlanRequest): Promise<void> {
  const place = await buildPlan(request);
  document.documentElement.classList.add("prints-plan");
  const leave = () => {
    document.documentElement.classList.remove("prints-plan");
    place.remove();
  };
  window.addEventListener("afterprint", leave, { once: true });
  window.print();
}
