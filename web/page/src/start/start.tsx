// Finding the test: by words, by three questions, or in the list.

import { useSignal } from "@preact/signals";
import type { Test } from "../contract";
import { LoadButton } from "../answer/comparison";
import { writeDesign } from "../address";
import { emptyDesign } from "../form/design";
import { Choice } from "../form/question";
import { show, tests } from "../state";
import { texts } from "../texts";
import { fits, type Guide, noGuide, shelvesOf, wishFor } from "./guide";
import { type Found, search } from "./search";

const say = texts.start;

function TestLink({ test, guide }: { test: Test; guide: Guide }) {
  const design = emptyDesign(test, wishFor(test, guide.aim));
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

function List({ tests: some, guide }: { tests: readonly Test[]; guide: Guide }) {
  return (
    <ul class="tests">
      {some.map((test) => (
        <TestLink key={test.name} test={test} guide={guide} />
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
  const isSearching = typed.value.trim() !== "";
  const questions = (
    <section key="guide" class="guide" aria-labelledby="guide-title">
      <h2 id="guide-title">{say.guide}</h2>
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
    </section>
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
        <List tests={listed} guide={guide.value} />
      ) : (
        shelvesOf(listed).map((shelf) => (
          <div class="shelf" key={shelf.kind}>
            <h3>{texts.kinds[shelf.kind]}</h3>
            <List tests={shelf.tests} guide={guide.value} />
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
