// Finding the test: by words, by three questions, or in the list.

import { useSignal } from "@preact/signals";
import { useMemo } from "preact/hooks";
import { LoadButton } from "../answer/files";
import { tests } from "../state";
import { texts } from "../texts";
import { fits, type Guide, noGuide, shelvesOf } from "./guide";
import { GuideQuestion } from "./guide_question";
import { type Found, search } from "./search";
import { TestList } from "./test_list";

const say = texts.start;

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
        <TestList tests={listed} guide={guide.value} typed={typed.value} />
      ) : (
        shelvesOf(listed).map((shelf) => (
          <div class="shelf" key={shelf.kind}>
            <h3>{texts.kinds[shelf.kind]}</h3>
            <TestList tests={shelf.tests} guide={guide.value} typed="" />
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
