// What takes long tells how long it has taken, and can be stopped.

import { useEffect, useState } from "preact/hooks";
import { stop, work } from "../live";
import { texts } from "../texts";

function Running() {
  const [seconds, setSeconds] = useState(0);
  useEffect(() => {
    const start = performance.now();
    const timer = setInterval(() => setSeconds(Math.floor((performance.now() - start) / 1000)), 1000);
    return () => clearInterval(timer);
  }, []);
  return (
    <div class="progress" data-testid="progress">
      <progress aria-label={texts.answer.computing} />
      <p>
        {texts.answer.searching}{" "}
        {seconds > 1 && (
          <span class="aside" aria-hidden="true">
            {texts.answer.seconds(seconds)}
          </span>
        )}
      </p>
      <button type="button" data-testid="stop" onClick={stop}>
        {texts.answer.stop}
      </button>
    </div>
  );
}

export function Progress() {
  return work.value === "long" ? <Running /> : null;
}
