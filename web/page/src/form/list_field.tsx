// Lists: an entry for each number, or one for all groups.

import { splitList } from "../numbers";
import { texts } from "../texts";
import { Entry, type FieldProps, Help, idsOf, Problem } from "./entry";
import { TableField } from "./table_field";
import { capital } from "./words";

/** The name of an entry of a list: of a group where it is one. */
function entryName({ parameter, entries, groupNames }: FieldProps, index: number): string {
  if (parameter.kind === "per-group") return capital(groupNames?.[index] ?? texts.form.group(index + 1));
  return entries.length === 2 ? (texts.form.pair[index] ?? "") : texts.form.entry(index + 1);
}

export function ListField(props: FieldProps) {
  const { parameter, entries, grid, help, error, onChange, onLeave } = props;
  if (grid && entries.length > 1) return <TableField {...props} grid={grid} />;
  const ids = idsOf(props);
  const single = entries.length === 1;
  const set = (index: number, text: string) => onChange(entries.map((entry, i) => (i === index ? text : entry)));
  const paste = (index: number, text: string) => {
    const parts = splitList(text, parameter.limits.whole === true);
    if (parts.length < 2 || single) return false;
    onChange(entries.map((entry, i) => parts[i - index] ?? entry));
    return true;
  };
  return (
    <fieldset class={`field list ${error ? "wrong" : ""}`} aria-describedby={ids.help}>
      <legend>{capital(parameter.label)}</legend>
      <div class="entries">
        {entries.map((entry, index) => {
          const id = `${ids.id}-${index + 1}`;
          const name = single ? capital(parameter.label) : entryName(props, index);
          return (
            <div class="entry" key={index}>
              {!single && <label for={id}>{name}</label>}
              <Entry
                id={id}
                testid={single ? `input-${parameter.name}` : `input-${parameter.name}-${index + 1}`}
                value={entry}
                described={`${ids.problem}`}
                invalid={error !== undefined}
                {...(single ? { label: name } : {})}
                onInput={(text) => set(index, text)}
                onPaste={(text) => paste(index, text)}
                onLeave={onLeave}
              />
            </div>
          );
        })}
      </div>
      <Help id={ids.help} text={help} />
      <Problem id={ids.problem} name={parameter.name} text={error} />
    </fieldset>
  );
}

/** One number for all groups, or one for each. */
export function SpreadField(props: FieldProps & { count: number }) {
  const { parameter, entries, count, onChange } = props;
  const same = entries.length === 1;
  const id = `${props.prefix}-${parameter.name}-same`;
  return (
    <div class="spread">
      <ListField {...props} />
      <div class="tick small">
        <input
          id={id}
          type="checkbox"
          data-testid={`same-${parameter.name}`}
          checked={same}
          aria-label={`${capital(parameter.label)}: ${texts.form.same}`}
          onChange={() => onChange(same ? Array.from({ length: count }, () => entries[0] ?? "") : [entries[0] ?? ""])}
        />
        <label for={id}>{texts.form.same}</label>
      </div>
    </div>
  );
}
