/** Chooses an input that gets a curve for each of several values. */

import type { Comparable } from "./compare";
import { readValues } from "./compare";
import type { Choice } from "./load";
import { isNumbers } from "./model";
import { shown } from "./numbers";
import { texts } from "./texts";

export interface CompareControlsProps {
  offered: Comparable[];
  chosen: Choice["compare"];
  locale: string;
  onChoose(compare: Choice["compare"]): void;
}

export function CompareControls({ offered, chosen, locale, onChoose }: CompareControlsProps) {
  if (!offered.length && !chosen) return null;
  const current = offered.find(({ name }) => name === chosen?.name);
  const choose = (name: string) => {
    const one = offered.find((candidate) => candidate.name === name);
    onChoose(one ? { name, values: one.usual } : null);
  };
  const type = (text: string) => {
    const values = readValues(text);
    if (chosen && values.length) onChoose({ name: chosen.name, values });
  };
  const typed = chosen?.values
    .map((value) => (typeof value === "number" ? shown(value, locale, 6) : isNumbers(value) ? value[0] : ""))
    .join(" ");
  return (
    <>
      <label class="pictures-choice">
        <span>{texts.compare}</span>
        <select value={chosen?.name ?? ""} onChange={(event) => choose(event.currentTarget.value)}>
          <option value="">{texts.compareNone}</option>
          {offered.map(({ name, label }) => (
            <option key={name} value={name} selected={name === chosen?.name}>
              {label}
            </option>
          ))}
        </select>
      </label>
      {chosen && current?.isNumber && (
        <label class="pictures-choice">
          <span>{texts.compareValues(current.label)}</span>
          <input
            type="text"
            inputMode="decimal"
            value={typed}
            title={texts.compareHint}
            onChange={(event) => type(event.currentTarget.value)}
          />
        </label>
      )}
    </>
  );
}
