// The page around the planner.

import { useEffect } from "preact/hooks";
import { Comparison } from "./answer/comparison";
import { focusOn, useFreshView } from "./focus";
import { Planner } from "./planner";
import { Start } from "./start/start";
import { kel, notice, show, test } from "./state";
import { texts } from "./texts";

const noticeLasts = 4000;

function Notice() {
  const text = notice.value;
  useEffect(() => {
    if (text === "") return;
    const timer = setTimeout(() => (notice.value = ""), noticeLasts);
    return () => clearTimeout(timer);
  }, [text]);
  return (
    <p class={`notice ${text ? "on" : ""}`} role="status" data-testid="notice">
      {text}
    </p>
  );
}

function Title() {
  const name = test.value?.title;
  useEffect(() => {
    document.title = name ? `${name} - ${texts.name}` : `${texts.name}: ${texts.start.title}`;
  }, [name]);
  return null;
}

function Glossary() {
  return (
    <details class="glossary">
      <summary>{texts.words.title}</summary>
      <dl>
        {texts.words.list.map(([word, meaning]) => (
          <div key={word}>
            <dt>{word}</dt>
            <dd>{meaning}</dd>
          </div>
        ))}
      </dl>
    </details>
  );
}

export function App() {
  useFreshView(test.value?.name ?? "");
  return (
    <>
      <a
        class="skip"
        href="#main"
        onClick={(event) => {
          event.preventDefault();
          focusOn("title");
        }}
      >
        {texts.skip}
      </a>
      <Title />
      <header class="top">
        <a
          class="name"
          href="#"
          onClick={(event) => {
            event.preventDefault();
            show(null, true);
          }}
        >
          {texts.name}
        </a>
        <p class="aside">{texts.privacy}</p>
      </header>
      <main id="main">
        {test.value ? <Planner test={test.value} /> : <Start />}
        <Comparison />
      </main>
      <footer>
        <Glossary />
        <p class="aside">{texts.version(kel.value?.version ?? "")}</p>
      </footer>
      <Notice />
    </>
  );
}
