// One test: what is asked, what is given, and the answer beside it.

import { AnswerPanel } from "./answer/answer";
import { Behind } from "./answer/behind";
import { Status } from "./answer/status";
import type { Test } from "./contract";
import { emptyDesign } from "./form/parts";
import { Fields } from "./form/fields";
import { AimChoice, FormChoice, QuestionChoice } from "./form/question";
import { questionsOf } from "./form/wishes";
import { useInputsInSight } from "./answer/peek";
import { PicturesOf } from "./answer/pictures_of";
import { design, show, tests } from "./state";
import { designFor } from "./start/guide";
import { texts } from "./texts";

/** What a test is not for, with links to the tests that are. */
function WhenNot({ text }: { text: string }) {
  const parts = text.split(/((?<=see (?:[a-z-]+(?:, | and ))?)[a-z-]+)/);
  return (
    <p class="help">
      {parts.map((part, i) => {
        const named = i % 2 === 1 ? tests.value.find(({ name }) => name === part) : undefined;
        if (!named) return part;
        const open = (event: Event) => {
          event.preventDefault();
          show(designFor(named, ""), true);
        };
        return (
          <a key={part} href={`#${part}`} onClick={open}>
            {named.title}
          </a>
        );
      })}
    </p>
  );
}

function Heading({ test }: { test: Test }) {
  return (
    <header class="test-heading">
      <a
        href="#"
        class="back"
        data-testid="all-tests"
        onClick={(event) => {
          event.preventDefault();
          show(null, true);
        }}
      >
        {texts.test.all}
      </a>
      <h1 id="title" tabIndex={-1} data-testid="test-title">
        {test.title}
      </h1>
      <p class="lead">{test.about}</p>
      {test["when-not"] && <WhenNot text={test["when-not"]} />}
    </header>
  );
}

export function Planner({ test }: { test: Test }) {
  const inputs = useInputsInSight();
  const clear = () => show(emptyDesign(test, design.value?.wish ?? questionsOf(test)[0] ?? "power"), true);
  return (
    <>
      <Heading test={test} />
      <div class="columns">
        <form class="inputs" ref={inputs} onSubmit={(event) => event.preventDefault()}>
          <QuestionChoice test={test} />
          <AimChoice test={test} />
          <FormChoice test={test} />
          <Fields test={test} />
          <div class="buttons">
            <button type="button" class="quiet" data-testid="clear" onClick={clear}>
              {texts.test.reset}
            </button>
          </div>
        </form>
        <div class="outputs">
          <AnswerPanel test={test} />
          <PicturesOf test={test} />
          <Behind test={test} />
        </div>
      </div>
      <Status test={test} />
    </>
  );
}
