// Designs in files.

import { useRef } from "preact/hooks";
import { inputsOf } from "../form/inputs";
import { loadDesigns, saveDesigns } from "../save";
import { keepInputs, kept, notice, tests } from "../state";
import { texts } from "../texts";

const say = texts.compare;

export function saveAll(): void {
  const designs = kept.value.flatMap(({ name, design }) => {
    const test = tests.value.find((one) => one.name === design.test);
    return test ? [{ test: test.name, name, inputs: inputsOf(test, design).inputs }] : [];
  });
  saveDesigns(designs);
}

async function loadFile(file: File | undefined): Promise<void> {
  if (!file) return;
  const { designs, problem } = loadDesigns(await file.text());
  const count = keepInputs(designs);
  notice.value = count > 0 ? say.loaded(count) : (problem ?? say.notLoaded);
}

/** Opens designs of a file. The button presses the browser's own, which cannot be styled. */
export function LoadButton() {
  const input = useRef<HTMLInputElement>(null);
  return (
    <>
      <button
        type="button"
        class="quiet"
        data-testid="load-designs"
        title={say.loadHelp}
        onClick={() => input.current?.click()}
      >
        {say.load}
      </button>
      <input
        ref={input}
        type="file"
        accept=".json,application/json"
        hidden
        data-testid="load-file"
        onChange={(event) => {
          void loadFile(event.currentTarget.files?.[0]);
          event.currentTarget.value = "";
        }}
      />
    </>
  );
}
