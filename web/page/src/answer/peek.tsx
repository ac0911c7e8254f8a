// The number in a corner while the answer itself is out of sight, so that a change far below shows its effect.

import { signal } from "@preact/signals";
import { useEffect, useRef } from "preact/hooks";
import { capital } from "../form/words";
import type { Headline } from "./words";

const inSight = signal(true);

/** Follows whether an element can be seen. */
export function useInSight<Kind extends HTMLElement>() {
  const element = useRef<Kind>(null);
  useEffect(() => {
    if (!element.current || typeof IntersectionObserver === "undefined") return;
    const observer = new IntersectionObserver(([entry]) => (inSight.value = entry?.isIntersecting ?? true));
    observer.observe(element.current);
    return () => {
      observer.disconnect();
      inSight.value = true;
    };
  }, []);
  return element;
}

export function Peek({ headline }: { headline: Headline }) {
  if (inSight.value) return null;
  return (
    <a
      class="peek"
      href="#answer-title"
      data-testid="peek"
      onClick={(event) => {
        event.preventDefault();
        document.getElementById("answer-title")?.focus();
      }}
    >
      <span>{capital(headline.label)}</span> <strong>{headline.text}</strong>
    </a>
  );
}
