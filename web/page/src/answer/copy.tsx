// Copying text, and saying that it was copied.

import { notice } from "../state";
import { texts } from "../texts";

/** The way that works where the newer one is not allowed, as in a file from the disk. */
function copyBySelection(text: string): boolean {
  const area = document.createElement("textarea");
  area.value = text;
  area.setAttribute("aria-hidden", "true");
  area.className = "offscreen";
  const focused = document.activeElement;
  document.body.append(area);
  area.select();
  const copied = document.execCommand("copy");
  area.remove();
  if (focused instanceof HTMLElement) focused.focus();
  return copied;
}

export async function copyText(text: string): Promise<void> {
  let copied = false;
  try {
    await navigator.clipboard.writeText(text);
    copied = true;
  } catch {
    copied = copyBySelection(text);
  }
  notice.value = copied ? texts.answer.copied : texts.answer.copyFailed;
}

interface CopyProps {
  text: string | (() => string);
  testid: string;
  label: string;
  /** What a screen reader says, where the visible label alone does not tell. */
  spoken?: string;
}

export function CopyButton({ text, testid, label, spoken }: CopyProps) {
  return (
    <button
      type="button"
      class="quiet"
      data-testid={testid}
      aria-label={spoken}
      onClick={() => void copyText(typeof text === "string" ? text : text())}
    >
      {label}
    </button>
  );
}
