// The fields of a design in their parts, each with the core's error at it.

import { useComputed } from "@preact/signals";
import type { Test } from "../contract";
import { outcome, tellNow } from "../live";
import { design, setTexts, show } from "../state";
import { texts } from "../texts";
import { type Design, entriesOf, type Field as DesignField, fieldsOf, groupsOf, mostEntries } from "./design";
import { Converter } from "./converter";
import { Field } from "./field";
import { addGroup, removeGroup } from "./groups";
import { helpOf, inLabels } from "./words";

type Errors = ReadonlyMap<string, string>;

/** What is wrong at which field; an error of several inputs stands at the first that has a field. */
function errorsOf(test: Test, fields: readonly DesignField[]): Errors {
  const now = outcome.value;
  const errors = new Map<string, string>();
  if (now.kind === "empty") {
    for (const { parameter, unclear } of now.lacks)
      if (unclear) errors.set(parameter.name, texts.form.unclear(unclear));
  }
  if (now.kind === "error") {
    const concerned = [now.error.parameter, ...now.error.parameters].map((name) => name?.replace(/^target-/, ""));
    const at = concerned.find((name) => fields.some(({ parameter }) => parameter.name === name));
    if (at) errors.set(at, inLabels(test, now.error.template ?? now.error.message));
  }
  return errors;
}

function GroupButtons({ test, now }: { test: Test; now: Design }) {
  const count = groupsOf(test, now);
  return (
    <div class="buttons">
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

function FieldsOf({ test, now, fields, errors }: PartProps) {
  return (
    <div class="fields">
      {fields.map(({ parameter }) => (
        <Field
          key={parameter.name}
          parameter={parameter}
          entries={entriesOf(test, now, parameter)}
          count={groupsOf(test, now)}
          groupNames={test["group-names"]}
          help={helpOf(test, parameter)}
          error={errors.get(parameter.name)}
          prefix="in"
          onChange={(entries) => setTexts(parameter.name, entries)}
          onLeave={tellNow}
        />
      ))}
    </div>
  );
}

function isGiven(now: Design, { parameter }: DesignField): boolean {
  return (now.texts[parameter.name] ?? []).some((text) => text.trim() !== "");
}

function Study(props: PartProps) {
  const { now, fields, errors } = props;
  const given = fields.filter((field) => isGiven(now, field)).length;
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
  const fields = fieldsOf(test, now);
  const part = (name: DesignField["part"]) => fields.filter((field) => field.part === name);
  const props = { test, now, errors: errorsOf(test, fields) };
  const listed = part("effect").some(({ parameter }) => parameter.kind === "per-group" && !parameter.spreads);
  const study = part("study");
  return (
    <>
      <Part {...props} title={estimates ? texts.form.estimate : texts.form.effect} fields={part("effect")}>
        {listed && test.groups === "k" && <GroupButtons test={test} now={now} />}
        <Converter test={test} />
      </Part>
      <Part {...props} title={texts.form.size} fields={part("size")} />
      <Part {...props} title={texts.form.target} fields={part("target")} />
      <Part {...props} title={texts.form.option} fields={part("option")} />
      {study.length > 0 && <Study {...props} fields={study} />}
    </>
  );
}
