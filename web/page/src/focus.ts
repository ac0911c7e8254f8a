// Where the keyboard and a screen reader go on after the page has changed under them.

import { useEffect } from "preact/hooks";

let isFirst = true;

/** Moves the focus, and what is seen, to an element. */
export function focusOn(id: string): void {
  const element = document.getElementById(id);
  element?.focus({ preventScroll: true });
  element?.scrollIntoView({ block: "nearest" });
}

/** Begins at the top when another view is opened, but leaves the page alone when it is loaded. */
export function useFreshView(name: string): void {
  useEffect(() => {
    if (isFirst) {
      isFirst = false;
      return;
    }
    document.getElementById("title")?.focus({ preventScroll: true });
    scrollTo(0, 0);
  }, [name]);
}
