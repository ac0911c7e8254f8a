/** The numbers behind a picture, and its files. */

import { useState } from "preact/hooks";
import { savePicture } from "../save/picture";
import type { PictureFormat } from "../save/picture";
import type { Picture } from "./build";
import { shown } from "./numbers";
import { fewRows } from "./numbers_of";
import { texts } from "./texts";

export function Keeping({ picture, locale }: { picture: Picture; locale: string }) {
  const formats: PictureFormat[] = ["svg", "png", "csv"];
  return (
    <div class="pictures-keeping">
      <Numbers picture={picture} locale={locale} />
      <div class="pictures-save" role="group" aria-label={texts.saveThePicture}>
        <span aria-hidden="true">{texts.saveAs}</span>
        {formats.map((format) => (
          <button key={format} type="button" onClick={() => void savePicture(picture, format, locale)}>
            {texts[format]}
          </button>
        ))}
      </div>
    </div>
  );
}

/** The picture for those who would rather read numbers. */
function Numbers({ picture, locale }: { picture: Picture; locale: string }) {
  const [isOpen, setOpen] = useState(false);
  const table = isOpen ? fewRows(picture.numbers()) : null;
  return (
    <details class="pictures-numbers" onToggle={(event) => setOpen(event.currentTarget.open)}>
      <summary>{texts.table}</summary>
      {table && (
        <div class="pictures-scroll" tabIndex={0} role="region" aria-label={texts.table}>
          <table>
            <thead>
              <tr>
                {table.columns.map((column) => (
                  <th key={column} scope="col">
                    {column}
                  </th>
                ))}
              </tr>
            </thead>
            <tbody>
              {table.rows.map((row, i) => (
                <tr key={i}>
                  {row.map((value, j) => (
                    <td key={j}>{value === null ? "–" : shown(value, locale)}</td>
                  ))}
                </tr>
              ))}
            </tbody>
          </table>
        </div>
      )}
    </details>
  );
}
