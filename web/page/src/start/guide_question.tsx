// One of the three questions that lead to a test.

import { Choice } from "../form/choice";
import { texts } from "../texts";

interface GroupProps<Key extends string> {
  name: string;
  title: string;
  words: Readonly<Record<Key, { label: string; help: string }>>;
  chosen: Key | "";
  onChoose: (key: Key | "") => void;
}

export function GuideQuestion<Key extends string>({ name, title, words, chosen, onChoose }: GroupProps<Key>) {
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
        <Choice group={name} value="any" chosen={chosen === ""} label={texts.start.any} onChoose={() => onChoose("")} />
      </div>
    </fieldset>
  );
}
