// The pictures of the answer. They stay while the next answer is computed, so that a drag is not interrupted.

import { useEffect, useState } from "preact/hooks";
import type { Test } from "../contract";
import { inputsOf } from "../form/inputs";
import { outcome } from "../live";
import { Pictures } from "../pictures";
import { kel, setValue } from "../state";
import { locale } from "../texts";

const darkPreferred = "(prefers-color-scheme: dark)";

function useTheme(): "light" | "dark" {
  const [isDark, setDark] = useState(() => matchMedia(darkPreferred).matches);
  useEffect(() => {
    const query = matchMedia(darkPreferred);
    const follow = () => setDark(query.matches);
    query.addEventListener("change", follow);
    return () => query.removeEventListener("change", follow);
  }, []);
  return isDark ? "dark" : "light";
}

export function PicturesOf({ test }: { test: Test }) {
  const theme = useTheme();
  const now = outcome.value;
  if (now.kind !== "answered" || now.design.test !== test.name || !kel.value) return null;
  return (
    <div class="pictures-card" data-testid="pictures">
      <Pictures
        design={{ test: test.name, inputs: inputsOf(test, now.design).inputs }}
        answer={now.answer}
        description={test}
        kel={kel.value}
        onChange={setValue}
        theme={theme}
        locale={locale}
      />
    </div>
  );
}
