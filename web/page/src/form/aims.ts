// What a test is to show: an effect of any size, or one beside a margin or between limits, where the description has
// routes that take the effect in the same form and more inputs with it.

import type { Parameter, Test } from "../contract";
import { texts } from "../texts";
import { chosenFlag, type Design } from "./design";
import { eitherOf, type Form, formOf, formsOf, nearestOf, parametersOf } from "./forms";
import { soughtBy, type Wish } from "./wishes";
import { inLabels } from "./words";

export interface Aim {
  key: string;
  /** The inputs that it needs besides those of the effect. */
  extra: readonly string[];
  /** The flag that is set for it. */
  flag: string | undefined;
  label: string;
  help: string;
}

/** The forms of the question that a wish asks, whichever number it leaves out. */
function allForms(test: Test, wish: Wish): Form[] {
  return formsOf(test, soughtBy(test, wish)?.target ?? wish);
}

/** What a form needs beyond the smallest one that is a part of it. */
export function extraOf(test: Test, wish: Wish, form: Form): string[] {
  const parts = allForms(test, wish)
    .map(({ needs }) => needs)
    .filter((needs) => needs.length < form.needs.length && needs.every((name) => form.needs.includes(name)));
  const least = parts.sort((a, b) => a.length - b.length)[0];
  return least ? form.needs.filter((name) => !least.includes(name)) : [];
}

function aimOfFlag(test: Test, extra: readonly string[], flag: string | undefined): Aim {
  const telling = parametersOf(test, flag ? [flag] : extra)[0] as Parameter | undefined;
  const plain = texts.aimOfTest;
  return {
    key: flag ?? (extra.join("+") || "any"),
    extra,
    flag,
    label: telling?.label ?? plain.label,
    help: telling ? inLabels(test, telling.meaning) : plain.help,
  };
}

/** All that a test can show where a wish is asked. */
export function aimsOf(test: Test, wish: Wish): Aim[] {
  const found = new Map<string, Aim[]>();
  for (const form of formsOf(test, wish)) {
    const extra = extraOf(test, wish, form);
    if (found.has(extra.join("+"))) continue;
    const flags = extra.length > 0 ? eitherOf(form) : [];
    const aims = flags.length > 0 ? flags : [undefined];
    found.set(
      extra.join("+"),
      aims.map((flag) => aimOfFlag(test, extra, flag)),
    );
  }
  return [...found.values()].flat();
}

export function aimOf(test: Test, design: Design): Aim | undefined {
  const extra = extraOf(test, design.wish, formOf(test, design.wish, design.form)).join("+");
  const flag = chosenFlag(test, design);
  const fits = aimsOf(test, design.wish).filter((aim) => aim.extra.join("+") === extra);
  return fits.find((aim) => aim.flag === flag) ?? fits[0];
}

/** The forms in which the effect can be given for the same aim as in another form. */
export function formsBeside(test: Test, wish: Wish, form: Form): Form[] {
  const extra = extraOf(test, wish, form).join("+");
  return formsOf(test, wish).filter((one) => extraOf(test, wish, one).join("+") === extra);
}

/** A design with another aim, and the effect in a form that is most like its own. */
export function withAim(test: Test, design: Design, aim: Aim): Design {
  const now = formOf(test, design.wish, design.form);
  const before = extraOf(test, design.wish, now);
  const wanted = [...now.needs.filter((name) => !before.includes(name)), ...aim.extra];
  const forms = formsOf(test, design.wish).filter(
    (form) => extraOf(test, design.wish, form).join("+") === aim.extra.join("+"),
  );
  const form = nearestOf(forms, wanted) ?? now;
  const set: Record<string, readonly string[]> = {};
  for (const flag of [...eitherOf(now), ...eitherOf(form)]) set[flag] = flag === aim.flag ? ["yes"] : [];
  return { ...design, form: form.key, texts: { ...design.texts, ...set } };
}
