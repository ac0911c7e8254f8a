// The same design as a call of the program and of the modules for Python and R.

import type { Answer } from "../contract";
import { texts } from "../texts";
import { CopyButton } from "./copy";

const languages = ["program", "python", "r"] as const;

export function Calls({ answer }: { answer: Answer }) {
  const calls = answer.calls as Readonly<Record<string, string>> | undefined;
  if (!calls) return null;
  return (
    <details class="more" data-testid="calls">
      <summary>{texts.answer.calls}</summary>
      <p class="help">{texts.answer.callsHelp}</p>
      <dl class="calls">
        {languages.map((language) => {
          const call = calls[language];
          if (!call) return null;
          const name = texts.answer[language];
          return (
            <div key={language}>
              <dt>{name}</dt>
              <dd>
                <code data-testid={`call-${language}`}>{call}</code>
                <CopyButton
                  text={call}
                  testid={`copy-${language}`}
                  label={texts.answer.copyShort}
                  spoken={texts.answer.copyCall(name)}
                />
              </dd>
            </div>
          );
        })}
      </dl>
    </details>
  );
}
