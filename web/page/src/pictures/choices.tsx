/** What the person can choose to see of a design. */

import { asksForSizes, canBePaired, isOfPower } from "./axes";
import type { Axis } from "./axes";
import { comparables } from "./compare";
import { CompareControls } from "./compare_controls";
import { effectAxis } from "./load";
import type { Choice, Kind, Loaded, Offer } from "./load";
import type { Answer, Test } from "./model";
import { texts } from "./texts";

export function Kinds({ kinds, chosen, onChoose }: { kinds: Kind[]; chosen: Kind | null; onChoose(kind: Kind): void }) {
  return (
    <fieldset class="pictures-kinds">
      <legend>{texts.pictures}</legend>
      {kinds.map((kind) => (
        <label key={kind} class={kind === chosen ? "is-chosen" : ""}>
          <input type="radio" name="pictures-kind" checked={kind === chosen} onChange={() => onChoose(kind)} />
          <span>{texts.kinds[kind]}</span>
        </label>
      ))}
    </fieldset>
  );
}

function AxisChoice(props: { label: string; axes: Axis[]; chosen: string; onChoose(name: string): void }) {
  return (
    <label class="pictures-choice">
      <span>{props.label}</span>
      <select value={props.chosen} onChange={(event) => props.onChoose(event.currentTarget.value)}>
        {props.axes.map((axis) => (
          <option key={axis.name} value={axis.name} selected={axis.name === props.chosen}>
            {axis.title}
          </option>
        ))}
      </select>
    </label>
  );
}

interface ControlsProps {
  offer: Offer;
  loaded: Loaded;
  choice: Choice;
  test: Test;
  question: Answer["question"];
  locale: string;
  onChoose(changes: Partial<Choice>): void;
}

export function Controls({ offer, loaded, choice, test, question, locale, onChoose }: ControlsProps) {
  const { kind, axis, up, chart } = loaded;
  if (kind === "saw" || kind === "interval") return null;
  const across = kind === "contour" ? offer.axes.filter((one) => effectAxis(offer.axes, one)) : offer.axes;
  const hasSizes = kind === "curve" && asksForSizes(question) && !axis.isOfSizes;
  const value = isOfPower(question) ? "power" : "half-width";
  return (
    <div class="pictures-controls">
      <AxisChoice
        label={kind === "densities" ? texts.move : texts.across}
        axes={across}
        chosen={axis.name}
        onChoose={(name) => onChoose({ axis: name, compare: null })}
      />
      {kind === "contour" && up && (
        <AxisChoice
          label={texts.up}
          axes={offer.axes.filter((one) => canBePaired(axis, one))}
          chosen={up.name}
          onChoose={(name) => onChoose({ up: name })}
        />
      )}
      {hasSizes && (
        <label class="pictures-choice">
          <span>{texts.show}</span>
          <select
            value={choice.showsSizes ? "sizes" : "value"}
            onChange={(event) => onChoose({ showsSizes: event.currentTarget.value === "sizes" })}
          >
            <option value="sizes">{texts.quantityChoice["sample-size"]}</option>
            <option value="value">{texts.quantityChoice[value]}</option>
          </select>
        </label>
      )}
      {kind === "curve" && offer.answer && (
        <CompareControls
          offered={comparables(test, chart, offer.answer.inputs)}
          chosen={choice.compare}
          locale={locale}
          onChoose={(compare) => onChoose({ compare })}
        />
      )}
    </div>
  );
}
