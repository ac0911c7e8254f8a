// Tests to choose from.

import type { Test } from "../contract";
import { writeDesign } from "../address";
import { show } from "../state";
import { texts } from "../texts";
import { givenBy } from "./given";
import { designFor, type Guide } from "./guide";

interface ListProps {
  guide: Guide;
  /** What was typed, which may tell numbers. */
  typed: string;
}

function TestLink({ test, guide, typed }: ListProps & { test: Test }) {
  const given = givenBy(test, typed);
  const design = given?.design ?? designFor(test, guide.aim);
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

export function TestList({ tests: some, ...props }: ListProps & { tests: readonly Test[] }) {
  return (
    <ul class="tests">
      {some.map((test) => (
        <TestLink key={test.name} test={test} {...props} />
      ))}
    </ul>
  );
}
