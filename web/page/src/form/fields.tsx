// The fields of a design in their parts, each with the core's error at it.

import { useComputed } from "@preact/signals";
import { Fragment } from "preact";
import type { Failure, Parameter, Test } from "../contract";
import { outcome, tellNow } from "../live";
import { design, setTexts, show } from "../state";
import { texts } from "../texts";
import { Converter } from "./converter";
import type { Design } from "./design";
import { Field } from "./field";
import { addGroup, removeGroup, resized } from "./groups";
import { type Field as DesignField, shownFields } from "./parts";
import { entriesOf, gridOf, groupsOf, groupsTeller, mostEntries } from "./shape";
import { helpOf, inLabels, presetOf } from "./words";

type Errors = ReadonlyMap<string, string>;

/** The field at which an error of the core stands: that of the first of its inputs that has one. */
export function fieldOfError(error: Failure["error"], fields: readonly DesignField[]): Parameter | undefined {
  const concerned = [error.parameter, ...error.parameters].map((name) => name?.replace(/^target-/, ""));
  const parameters = fields.map(({ parameter }) => parameter);
  return concerned.flatMap((name) => parameters.find((one) => one.name === name) ?? [])[0];
}

/** What is wrong at which field. */
function errorsOf(test: Test, fields: readonly DesignField[]): Errors {
  const now = outcome.value;
  const errors = new Map<string, string>();
  if (now.kind === "empty") {
    for (const { parameter, unclear } of now.lacks)
      if (unclear) errors.set(parameter.name, texts.form.unclear(unclear));
  }
  if (now.kind === "error") {
    const at = fieldOfError(now.error, fields);
    if (at) errors.set(at.name, inLabels(test, now.error.template ?? now.error.message));
  }
  return errors;
}

function GroupButtons({ test, now }: { test: Test; now: Design }) {
  const count = groupsOf(test, now);
  return (
    <div class="buttons groups">
      <button
        type="button"
        class="quiet"
        data-testid="add-group"
        disabled={count >= mostEntries}
        onClick={() => show(addGroup(test, now), false)}
      >
        {texts.form.addGroup}
      </button>
      <button
        type="button"
        class="quiet"
        data-testid="remove-group"
        disabled={count <= 2}
        onClick={() => show(removeGroup(test, now), false)}
      >
        {texts.form.removeGroup}
      </button>
    </div>
  );
}

interface PartProps {
  test: Test;
  now: Design;
  fields: readonly DesignField[];
  errors: Errors;
}

/** The list by whose entries the groups are counted, behind which groups are added and removed. */
function countingList(test: Test, now: Design, fields: readonly DesignField[]): string | undefined {
  if (groupsTeller(test, now)?.kind !== "per-group") return undefined;
  const lists = fields.filter(({ parameter }) => parameter.kind === "per-group" && !parameter.spreads);
  return test.groups === "k" ? lists.at(-1)?.parameter.name : undefined;
}

function FieldsOf({ test, now, fields, errors }: PartProps) {
  const counting = countingList(test, now, fields);
  return (
    <div class="fields">
      {fields.map(({ parameter, needed }) => (
        <Fragment key={parameter.name}>
          <Field
            parameter={parameter}
            entries={entriesOf(test, now, parameter)}
            needed={needed}
            count={groupsOf(test, now)}
            grid={gridOf(test, now, parameter)}
            groupNames={test["group-names"]}
            help={isGiven(now, parameter) ? helpOf(test, parameter) : withPreset(test, parameter)}
            error={errors.get(parameter.name)}
            prefix="in"
            onChange={(entries) => setTexts(parameter.name, entries)}
            onResize={(rows, columns, entries) => {
              const next = resized(test, now, parameter, rows, columns);
              show(entries ? { ...next, texts: { ...next.texts, [parameter.name]: entries } } : next, false);
            }}
            onLeave={tellNow}
          />
          {parameter.name === counting && <GroupButtons test={test} now={now} />}
        </Fragment>
      ))}
    </div>
  );
}

function withPreset(test: Test, parameter: Parameter): string {
  return [helpOf(test, parameter), presetOf(parameter)].filter((text) => text !== "").join("; ");
}

function isGiven(now: Design, parameter: Parameter): boolean {
  return (now.texts[parameter.name] ?? []).some((text) => text.trim() !== "");
}

function Study(props: PartProps) {
  const { now, fields, errors } = props;
  const given = fields.filter((field) => isGiven(now, field.parameter)).length;
  const wrong = fields.some(({ parameter }) => errors.has(parameter.name));
  return (
    <details class="study" data-testid="study" open={given > 0 || wrong || undefined}>
      <summary>
        <span>{texts.form.study}</span>
        <span class="aside">{given > 0 ? texts.form.given(given) : texts.form.studyHelp}</span>
      </summary>
      <FieldsOf {...props} />
    </details>
  );
}

/** A part of the form under a heading of its own. */
function Part(props: PartProps & { title: string; children?: preact.ComponentChildren }) {
  if (props.fields.length === 0) return null;
  return (
    <section class="part">
      <h2>{props.title}</h2>
      <FieldsOf {...props} />
      {props.children}
    </section>
  );
}

export function Fields({ test }: { test: Test }) {
  const now = design.value;
  const estimates = useComputed(() => /half-width/.test(design.value?.wish ?? "")).value;
  if (!now) return null;
  const fields = shownFields(test, now);
  const part = (name: DesignField["part"]) => fields.filter((field) => field.part === name);
  const props = { test, now, errors: errorsOf(test, fields) };
  const study = part("study");
  // What is said of sizes that are to be found comes after the aim.
  const sizesFirst = part("size").some(({ needed }) => needed);
  const sizes = <Part {...props} title={texts.form.size} fields={part("size")} />;
  return (
    <>
      <Part {...props} title={estimates ? texts.form.estimate : texts.form.effect} fields={part("effect")}>
        <Converter test={test} />
      </Part>
      {sizesFirst && sizes}
      <Part {...props} title={texts.form.target} fields={part("target")} />
      {!sizesFirst && sizes}
      <Part {...props} title={texts.form.option} fields={part("option")} />
      {study.length > 0 && <Study {...props} fields={study} />}
    </>
  );
}
