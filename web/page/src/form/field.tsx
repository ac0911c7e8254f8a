// The fields of a form, one for each kind of input.

import { texts } from "../texts";
import { Entry, type FieldProps, Help, idsOf, Problem } from "./entry";
import { ListField, SpreadField } from "./list_field";
import { TableField } from "./table_field";
import { capital } from "./words";

function NumberField(props: FieldProps) {
  const { parameter, entries, help, error, onChange } = props;
  const ids = idsOf(props);
  const isList = parameter.kind === "list";
  return (
    <div class={`field ${error ? "wrong" : ""} ${isList ? "across" : ""}`}>
      <label for={ids.id}>{capital(parameter.label)}</label>
      <Entry
        id={ids.id}
        testid={`input-${parameter.name}`}
        value={entries[0] ?? ""}
        described={ids.described}
        invalid={error !== undefined}
        onInput={(text) => onChange([text])}
        onLeave={props.onLeave}
      />
      <Help id={ids.help} text={isList ? `${help}; ${texts.form.listHelp}` : help} />
      <Problem id={ids.problem} name={parameter.name} text={error} />
    </div>
  );
}

function FlagField(props: FieldProps) {
  const { parameter, entries, help, error, onChange } = props;
  const ids = idsOf(props);
  return (
    <div class={`field tick ${error ? "wrong" : ""}`}>
      <input
        id={ids.id}
        data-testid={`input-${parameter.name}`}
        type="checkbox"
        checked={entries[0] === "yes"}
        aria-describedby={ids.described}
        onChange={(event) => onChange(event.currentTarget.checked ? ["yes"] : [])}
      />
      <label for={ids.id}>{capital(parameter.label)}</label>
      <Help id={ids.help} text={help} />
      <Problem id={ids.problem} name={parameter.name} text={error} />
    </div>
  );
}

/** A choice with longer words has the whole width. */
const longestInColumn = 22;

function ChoiceField(props: FieldProps) {
  const { parameter, entries, help, error, onChange } = props;
  const ids = idsOf(props);
  const chosen = entries[0] || String(parameter.default ?? "");
  const choices = (parameter.choices ?? []).map((choice) => ({
    choice,
    label: capital(parameter.wordings?.[choice] ?? choice),
  }));
  const isWide = choices.some(({ label }) => label.length > longestInColumn);
  return (
    <div class={`field ${error ? "wrong" : ""} ${isWide ? "across" : ""}`}>
      <label for={ids.id}>{capital(parameter.label)}</label>
      <select
        id={ids.id}
        data-testid={`input-${parameter.name}`}
        value={chosen}
        aria-describedby={ids.described}
        onChange={(event) => onChange([event.currentTarget.value])}
      >
        {parameter.default === undefined && (
          <option value="">{props.needed === false ? texts.form.asUsual : texts.convert.choose}</option>
        )}
        {choices.map(({ choice, label }) => (
          <option key={choice} value={choice}>
            {label}
          </option>
        ))}
      </select>
      <Help id={ids.help} text={help} />
      <Problem id={ids.problem} name={parameter.name} text={error} />
    </div>
  );
}

export function Field(props: FieldProps & { count: number }) {
  const { parameter, grid } = props;
  if (parameter.kind === "flag") return <FlagField {...props} />;
  if (parameter.kind === "choice") return <ChoiceField {...props} />;
  if (grid && parameter.kind === "list") return <TableField {...props} grid={grid} />;
  if (parameter.spreads) return <SpreadField {...props} />;
  if (parameter.kind === "number" || (parameter.kind === "list" && !parameter.length))
    return <NumberField {...props} />;
  return <ListField {...props} />;
}
