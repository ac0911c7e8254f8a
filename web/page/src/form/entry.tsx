// What all fields have: an entry, its help, and what is wrong with it.

import type { Parameter } from "../contract";
import type { Grid } from "./shape";

export interface FieldProps {
  parameter: Parameter;
  entries: readonly string[];
  help: string;
  error: string | undefined;
  /** Where in the page the field stands, so that ids differ. */
  prefix: string;
  /** Names of the groups, where the entries are theirs. */
  groupNames?: readonly string[] | undefined;
  /** Rows and columns, where the entries are those of a table. */
  grid?: Grid | undefined;
  /** Whether the input has to be given. */
  needed?: boolean;
  onChange: (entries: readonly string[]) => void;
  /** Makes a table larger or smaller; with entries, they become the whole table. */
  onResize?: (rows: number, columns: number, entries?: readonly string[]) => void;
  onLeave?: () => void;
}

export function Help({ id, text }: { id: string; text: string }) {
  return text ? (
    <p class="help" id={id}>
      {text}
    </p>
  ) : null;
}

export function Problem({ id, name, text }: { id: string; name: string; text: string | undefined }) {
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

export function Entry({ id, testid, value, described, invalid, label, onInput, onPaste, onLeave }: EntryProps) {
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

export function idsOf({ parameter, prefix }: FieldProps) {
  const id = `${prefix}-${parameter.name}`;
  return { id, help: `${id}-help`, problem: `${id}-problem`, described: `${id}-help ${id}-problem` };
}
