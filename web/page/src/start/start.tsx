// Finding the test: by words, by three questions, or in the list.

import { useSignal } from "@preact/signals";
import { useMemo } from "preact/hooks";
import type { Test } from "../contract";
import { LoadButton } from "../answer/comparison";
import { writeDesign } from "../address";
import { emptyDesign } from "../form/design";
import { Choice } from "../form/question";
import { show, tests } from "../state";
import { texts } from "../texts";
import { givenBy } from "./given";
import { fits, type Guide, noGuide, shelvesOf, wishFor } from "./guide";
import { type Found, search } from "./search";

const say = texts.start;

interface ListProps {
  guide: Guide;
  /** What was typed, which may tell numbers. */
  typed: string;
}

function TestLink({ test, guide, typed }: ListProps & { test: Test }) {
  const given = givenBy(test, typed);
  const design = given?.design ?? emptyDesign(test, wishFor(test, guide.aim));
  return (
    <li>
      <a
        class="test"
        href={`#${writeDesign(test, design)}`}
        data-testid={`test-${test.name}`}
        onClick={(event) => {
          if (event.metaKey || event.ctrlKey || event.shiftKey) return;
          event.preventDefault();
          show(design, true);
        }}
      >
        <span class="test-title">{test.title}</span>
        <span class="test-about">{test.about}</span>
        {given && <span class="test-given">{texts.start.given(given.words)}</span>}
      </a>
    </li>
  );
}

interface GroupProps<Key extends string> {
  name: string;
  title: string;
  words: Readonly<Record<Key, { label: string; help: string }>>;
  chosen: Key | "";
  onChoose: (key: Key | "") => void;
}

function GuideQuestion<Key extends string>({ name, title, words, chosen, onChoose }: GroupProps<Key>) {
  const keys = Object.keys(words) as Key[];
  return (
    <fieldset data-testid={name}>
      <legend>{title}</legend>
      <div class="choices small">
        {keys.map((key) => (
          <Choice
            key={key}
            group={name}
            value={key}
            chosen={chosen === key}
            label={words[key].label}
            help={words[key].help}
            onChoose={() => onChoose(key)}
          />
        ))}
        <Choice group={name} value="any" chosen={chosen === ""} label={say.any} onChoose={() => onChoose("")} />
      </div>
    </fieldset>
  );
}

function Hints({ found }: { found: Found }) {
  return (
    <>
      {found.hints.map((hint) => (
        <p class="hint" key={hint} data-testid="hint">
          {hint}
        </p>
      ))}
    </>
  );
}

function List({ tests: some, ...props }: ListProps & { tests: readonly Test[] }) {
  return (
    <ul class="tests">
      {some.map((test) => (
        <TestLink key={test.name} test={test} {...props} />
      ))}
    </ul>
  );
}

export function Start() {
  const typed = useSignal("");
  const guide = useSignal<Guide>(noGuide);
  const found = search(tests.value, typed.value);
  const byName = (name: string) => tests.value.find((test) => test.name === name);
  const listed = found.tests.flatMap((name) => byName(name) ?? []).filter((test) => fits(test, guide.value));
  const touched = typed.value !== "" || Object.values(guide.value).some((answer) => answer !== "");
  const clear = () => {
    typed.value = "";
    guide.value = noGuide;
  };
  const answer = (changes: Partial<Guide>) => (guide.value = { ...guide.value, ...changes });
  const isWide = useMemo(() => matchMedia("(min-width: 45rem)").matches, []);
  const isSearching = typed.value.trim() !== "";
  const questions = (
    <details key="guide" class="guide" open={isWide}>
      <summary>{say.guide}</summary>
      <div class="guide-questions">
        <GuideQuestion
          name="guide-measure"
          title={say.measure}
          words={texts.measures}
          chosen={guide.value.measure}
          onChoose={(measure) => answer({ measure })}
        />
        <GuideQuestion
          name="guide-groups"
          title={say.groups}
          words={texts.groups}
          chosen={guide.value.groups}
          onChoose={(groups) => answer({ groups })}
        />
        <GuideQuestion
          name="guide-aim"
          title={say.aim}
          words={texts.aims}
          chosen={guide.value.aim}
          onChoose={(aim) => answer({ aim })}
        />
      </div>
    </details>
  );
  const list = (
    <section key="list" aria-labelledby="list-title">
      <div class="bar">
        <h2 id="list-title">{say.list}</h2>
        <p class="aside" role="status">
          {say.count(listed.length, tests.value.length)}
        </p>
        {touched && (
          <button type="button" class="quiet" data-testid="clear" onClick={clear}>
            {say.clear}
          </button>
        )}
      </div>
      <Hints found={found} />
      {listed.length === 0 && found.hints.length === 0 && (
        <p class="message" data-testid="no-test">
          {say.none(found.tests.length === 0 ? typed.value.trim() : "")}
        </p>
      )}
      {isSearching ? (
        <List tests={listed} guide={guide.value} typed={typed.value} />
      ) : (
        shelvesOf(listed).map((shelf) => (
          <div class="shelf" key={shelf.kind}>
            <h3>{texts.kinds[shelf.kind]}</h3>
            <List tests={shelf.tests} guide={guide.value} typed="" />
          </div>
        ))
      )}
    </section>
  );
  return (
    <div class="start">
      <h1 tabIndex={-1} id="title">
        {say.title}
      </h1>
      <p class="lead">{say.lead}</p>
      <div class="field search">
        <label for="search">{say.search}</label>
        <input
          id="search"
          data-testid="search"
          type="search"
          autocomplete="off"
          value={typed.value}
          aria-describedby="search-help"
          onInput={(event) => (typed.value = event.currentTarget.value)}
        />
        <p class="help" id="search-help">
          {say.searchHelp}
        </p>
      </div>
      {isSearching ? [list, questions] : [questions, list]}
      <div class="buttons">
        <LoadButton />
      </div>
    </div>
  );
}
