// How an answer is computed: the figures, the formula, its source, and how other programs are asked.

import type { Answer } from "../contract";
import { showFigure } from "../numbers";
import { texts } from "../texts";

type Details = NonNullable<Answer["details"]>;

function Figures({ figures }: { figures: Details["figures"] }) {
  const rows = Object.entries(figures).filter(([, value]) => value !== null);
  if (rows.length === 0) return null;
  return (
    <table class="figures">
      <caption>{texts.answer.figures}</caption>
      <tbody>
        {rows.map(([name, value]) => (
          <tr key={name}>
            <th scope="row">{name.replaceAll("-", " ")}</th>
            <td>{showFigure(Number(value))}</td>
          </tr>
        ))}
      </tbody>
    </table>
  );
}

function Programs({ programs }: { programs: Details["programs"] }) {
  if (programs.length === 0) return null;
  return (
    <>
      <h3>{texts.answer.programs}</h3>
      <ul class="programs">
        {programs.map(({ program, call, same, remark }) => (
          <li key={`${program} ${call}`}>
            <p>
              <strong>{program}</strong> <span class="aside">{same ? texts.answer.same : texts.answer.differs}</span>
            </p>
            <code>{call}</code>
            {remark && <p class="help">{remark}</p>}
          </li>
        ))}
      </ul>
    </>
  );
}

export function Explanation({ answer }: { answer: Answer }) {
  const { details } = answer;
  if (!details) return null;
  return (
    <details class="more" data-testid="explanation">
      <summary>{texts.answer.explanation}</summary>
      <Figures figures={details.figures} />
      <h3>{texts.answer.formula}</h3>
      <p class="formula">{details.formula}</p>
      <h3>{texts.answer.source}</h3>
      <p>{details.source}</p>
      <Programs programs={details.programs} />
    </details>
  );
}
