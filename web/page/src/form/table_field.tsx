// Lists that are written row by row: a table of entries, to which rows and columns can be added.

import { splitList } from "../numbers";
import { texts } from "../texts";
import { Entry, type FieldProps, Help, idsOf, Problem } from "./entry";
import { pastedRows } from "./groups";
import type { Grid, Side } from "./shape";
import { capital } from "./words";

type TableProps = FieldProps & { grid: Grid };

interface SideButtonsProps {
  side: Side;
  onCount: (count: number) => void;
  most: number;
}

/** Buttons that add one and remove the last, where a side can grow. */
function SideButtons({ side, onCount, most }: SideButtonsProps) {
  const { each, count, least } = side;
  if (each === undefined) return null;
  const id = each.replace(/\s/g, "-");
  return (
    <>
      <button
        type="button"
        class="quiet"
        data-testid={`add-${id}`}
        disabled={count >= most}
        onClick={() => onCount(count + 1)}
      >
        {texts.form.add(each)}
      </button>
      <button
        type="button"
        class="quiet"
        data-testid={`remove-${id}`}
        disabled={count <= least}
        onClick={() => onCount(count - 1)}
      >
        {texts.form.removeLast(each)}
      </button>
    </>
  );
}

const mostOfSide = 100;

/** The entries with rows pasted at a place; those beyond the table are left out. */
function pasted(props: TableProps, index: number, rows: readonly string[][]): string[] {
  const width = props.grid.columns.count;
  const entries = [...props.entries];
  rows.forEach((row, i) =>
    row.forEach((text, j) => {
      const column = (index % width) + j;
      const at = (Math.floor(index / width) + i) * width + column;
      if (column < width && at < entries.length) entries[at] = text;
    }),
  );
  return entries;
}

/** Takes a pasted table: in the first cell it becomes the whole table, if that can grow. */
function paste(props: TableProps, index: number, text: string): boolean {
  const { grid, onChange, onResize = () => {} } = props;
  const rows = pastedRows(text, (line) => splitList(line, props.parameter.limits.whole === true));
  const width = Math.max(...rows.map((row) => row.length), 0);
  if (rows.length * width < 2) return false;
  const grows = grid.rows.each !== undefined && grid.columns.each !== undefined;
  const fits = rows.length <= mostOfSide && width <= mostOfSide;
  if (grows && fits && index === 0 && rows.length >= grid.rows.least && width >= grid.columns.least) {
    const whole = rows.flatMap((row) => Array.from({ length: width }, (_, i) => row[i] ?? ""));
    onResize(rows.length, width, whole);
  } else {
    onChange(pasted(props, index, rows));
  }
  return true;
}

export function TableField(props: TableProps) {
  const { parameter, entries, help, error, grid, onChange, onLeave, onResize = () => {} } = props;
  const ids = idsOf(props);
  const { rows, columns } = grid;
  const set = (at: number, text: string) => onChange(entries.map((entry, i) => (i === at ? text : entry)));
  return (
    <fieldset class={`field list table ${error ? "wrong" : ""}`} aria-describedby={ids.help}>
      <legend>{capital(parameter.label)}</legend>
      <div class="cells">
        <table>
          <thead>
            <tr>
              <td />
              <th colSpan={columns.count} scope="colgroup">
                {columns.title}
              </th>
            </tr>
            <tr>
              <th scope="col">{rows.title}</th>
              {columns.places.map((place) => (
                <th key={place} scope="col">
                  {place}
                </th>
              ))}
            </tr>
          </thead>
          <tbody>
            {rows.names.map((row, i) => (
              <tr key={row}>
                <th scope="row">{rows.places[i]}</th>
                {columns.names.map((column, j) => {
                  const at = i * columns.count + j;
                  return (
                    <td key={column}>
                      <Entry
                        id={`${ids.id}-${at + 1}`}
                        testid={`input-${parameter.name}-${at + 1}`}
                        value={entries[at] ?? ""}
                        label={texts.form.cell(row, column)}
                        described={ids.problem}
                        invalid={error !== undefined}
                        onInput={(text) => set(at, text)}
                        onPaste={(text) => paste(props, at, text)}
                        onLeave={onLeave}
                      />
                    </td>
                  );
                })}
              </tr>
            ))}
          </tbody>
        </table>
      </div>
      <div class="buttons groups">
        <SideButtons side={rows} most={mostOfSide} onCount={(count) => onResize(count, columns.count)} />
        <SideButtons side={columns} most={mostOfSide} onCount={(count) => onResize(rows.count, count)} />
      </div>
      <Help id={ids.help} text={`${help}; ${texts.form.tableHelp}`} />
      <Problem id={ids.problem} name={parameter.name} text={error} />
    </fieldset>
  );
}
