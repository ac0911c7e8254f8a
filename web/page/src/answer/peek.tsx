// The number in a corner while the answer itself is out of sight, so that a change far below shows its effect.

import { type Signal, signal } from "@preact/signals";
import { useEffect, useRef } from "preact/hooks";
import { focusOn } from "../focus";
import { capital } from "../form/words";
import type { Headline } from "./words";

const numberInSight = signal(true);
const inputsInSight = signal(false);

/** Follows whether an element can be seen. */
function useInSight<Kind extends HTMLElement>(seen: Signal<boolean>, otherwise: boolean) {
  const element = useRef<Kind>(null);
  useEffect(() => {
    if (!element.current || typeof IntersectionObserver === "undefined") return;
    const observer = new IntersectionObserver((entries) => (seen.value = entries.at(-1)?.isIntersecting ?? otherwise));
    observer.observe(element.current);
    return () => {
      observer.disconnect();
      seen.value = otherwise;
    };
  }, []);
  return element;
}

export const useNumberInSight = () => useInSight<HTMLDivElement>(numberInSight, true);
export const useInputsInSight = () => useInSight<HTMLFormElement>(inputsInSight, false);

export function Peek({ headline }: { headline: Headline }) {
  if (numberInSight.value || !inputsInSight.value) return null;
  return (
    <a
      class="peek"
      href="#answer"
      data-testid="peek"
      onClick={(event) => {
        event.preventDefault();
        focusOn("answer");
      }}
    >
      <span>{capital(headline.label)}</span> <strong>{headline.text}</strong>
    </a>
  );
}
