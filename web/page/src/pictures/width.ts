import { useCallback, useRef, useState } from "preact/hooks";

/** The width of an element, as it changes. */
export function useWidth(): [(element: HTMLElement | null) => void, number] {
  const [width, setWidth] = useState(0);
  const observer = useRef<ResizeObserver | null>(null);
  const attach = useCallback((element: HTMLElement | null) => {
    observer.current?.disconnect();
    if (!element) return;
    setWidth(Math.floor(element.clientWidth));
    observer.current = new ResizeObserver(() => setWidth(Math.floor(element.clientWidth)));
    observer.current.observe(element);
  }, []);
  return [attach, width];
}
