// Designs side by side.

import { kept } from "../state";
import { texts } from "../texts";
import { LoadButton, saveAll } from "./files";
import { KeptRow } from "./kept_row";

const say = texts.compare;

export function Comparison() {
  if (kept.value.length === 0) return null;
  return (
    <section class="comparison">
      <div class="bar">
        <h2 id="comparison-title" tabIndex={-1}>
          {say.title}
        </h2>
        <div class="buttons">
          <button type="button" class="quiet" data-testid="save-designs" onClick={saveAll}>
            {say.save}
          </button>
          <LoadButton />
        </div>
      </div>
      <div class="wide" role="region" aria-labelledby="comparison-title" tabIndex={0}>
        <table role="table" data-testid="comparison">
          <thead role="rowgroup">
            <tr role="row">
              <th role="columnheader" scope="col">
                {say.name}
              </th>
              <th role="columnheader" scope="col">
                {say.test}
              </th>
              <th role="columnheader" scope="col">
                {say.asked}
              </th>
              <th role="columnheader" scope="col">
                {say.answer}
              </th>
              <th role="columnheader" scope="col" class="figure">
                {say.total}
              </th>
              <th role="columnheader" scope="col" class="figure">
                {say.power}
              </th>
              <td role="cell" />
            </tr>
          </thead>
          <tbody role="rowgroup">
            {kept.value.map((one, i) => (
              <KeptRow key={one.id} one={one} number={i + 1} />
            ))}
          </tbody>
        </table>
      </div>
    </section>
  );
}
