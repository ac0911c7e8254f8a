// The fields of a form, one for each kind of input.

import type { ComponentChildren } from "preact";
import type { Parameter } from "../contract";
import { splitList } from "../numbers";
import { texts } from "../texts";
import { capital } from "./words";

export interface FieldProps {
  parameter: Parameter;
  entries: readonly string[];
  help: string;
  error: string | undefined;
  /** Where in the page the field stands, so that ids differ. */
  prefix: string;
  /** Names of the groups, where the entries are theirs. */
  groupNames?: readonly string[] | undefined;
  onChange: (entries: readonly string[]) => void;
  onLeave?: () => void;
}

function Help({ id, text }: { id: string; text: string }) {
  return text ? (
    <p class="help" id={id}>
      {text}
    </p>
  ) : null;
}

function Problem({ id, name, text }: { id: string; name: string; text: string | undefined }) {
  return (
    <p class="problem" id={id} data-testid={`error-${name}`} hidden={!text}>
      {text}
    </p>
  );
}

interface EntryProps {
  id: string;
  testid: string;
  value: string;
  described: string;
  invalid: boolean;
  label?: string;
  onInput: (text: string) => void;
  onPaste?: (text: string) => boolean;
  onLeave: (() => void) | undefined;
}

function Entry({ id, testid, value, described, invalid, label, onInput, onPaste, onLeave }: EntryProps) {
  return (
    <input
      id={id}
      data-testid={testid}
      type="text"
      inputMode="decimal"
      autocomplete="off"
      autocapitalize="off"
      spellcheck={false}
      value={value}
      aria-label={label}
      aria-describedby={described}
      aria-invalid={invalid ? "true" : undefined}
      onInput={(event) => onInput(event.currentTarget.value)}
      onPaste={(event) => {
        const pasted = event.clipboardData?.getData("text") ?? "";
        if (onPaste?.(pasted)) event.preventDefault();
      }}
      onBlur={onLeave}
    />
  );
}

function idsOf({ parameter, prefix }: FieldProps) {
  const id = `${prefix}-${parameter.name}`;
  return { id, help: `${id}-help`, problem: `${id}-problem`, described: `${id}-help ${id}-problem` };
}

function NumberField(props: FieldProps) {
  const { parameter, entries, help, error, onChange } = props;
  const ids = idsOf(props);
  const isList = parameter.kind === "list";
  return (
    <div class={`field ${error ? "wrong" : ""}`}>
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

function ChoiceField(props: FieldProps) {
  const { parameter, entries, help, error, onChange } = props;
  const ids = idsOf(props);
  const chosen = entries[0] || String(parameter.default ?? "");
  return (
    <div class={`field ${error ? "wrong" : ""}`}>
      <label for={ids.id}>{capital(parameter.label)}</label>
      <select
        id={ids.id}
        data-testid={`input-${parameter.name}`}
        value={chosen}
        aria-describedby={ids.described}
        onChange={(event) => onChange([event.currentTarget.value])}
      >
        {chosen === "" && <option value="">{texts.convert.choose}</option>}
        {(parameter.choices ?? []).map((choice) => (
          <option key={choice} value={choice}>
            {capital(parameter.wordings?.[choice] ?? choice)}
          </option>
        ))}
      </select>
      <Help id={ids.help} text={help} />
      <Problem id={ids.problem} name={parameter.name} text={error} />
    </div>
  );
}

/** The name of an entry of a list: of a group where it is one. */
function entryName({ parameter, entries, groupNames }: FieldProps, index: number): string {
  if (parameter.kind === "per-group") return capital(groupNames?.[index] ?? texts.form.group(index + 1));
  return entries.length === 2 ? (texts.form.pair[index] ?? "") : texts.form.entry(index + 1);
}

function ListField(props: FieldProps) {
  const { parameter, entries, help, error, onChange, onLeave } = props;
  const ids = idsOf(props);
  const single = entries.length === 1;
  const set = (index: number, text: string) => onChange(entries.map((entry, i) => (i === index ? text : entry)));
  const paste = (index: number, text: string) => {
    const parts = splitList(text);
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
function SpreadField(props: FieldProps & { count: number; below?: ComponentChildren }) {
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

export function Field(props: FieldProps & { count: number }) {
  const { parameter } = props;
  if (parameter.kind === "flag") return <FlagField {...props} />;
  if (parameter.kind === "choice") return <ChoiceField {...props} />;
  if (parameter.spreads) return <SpreadField {...props} />;
  if (parameter.kind === "number" || (parameter.kind === "list" && !parameter.length))
    return <NumberField {...props} />;
  return <ListField {...props} />;
}
