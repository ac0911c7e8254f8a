/** The pictures of a design: those that fit its answer, to look at, to take hold of and to save. */

import { useMemo } from "preact/hooks";
import { pictureOf } from "./build";
import type { State } from "./build";
import { Controls, Kinds } from "./choices";
import { fontOfScreen } from "./frame";
import type { Composed, Look } from "./frame";
import { Grip, Slider } from "./grip";
import { Keeping } from "./keeping";
import { isTable } from "./model";
import type { Answer, Core, Design, Failure, Table, Test, Value } from "./model";
import type { Changes } from "./move";
import { paletteOf } from "./palette";
import type { Theme } from "./palette";
import { texts } from "./texts";
import { useLoaded } from "./use_loaded";
import { useWidth } from "./width";
import "./pictures.css";

export interface PicturesProps {
  design: Design;
  answer: Answer | Table | Failure | null;
  description: Test;
  kel: Core;
  onChange(name: string, value: Value): void;
  theme?: Theme;
  locale?: string;
}

export function Pictures(props: PicturesProps) {
  const { design, answer, description: test, kel, onChange, theme = "light", locale = "en" } = props;
  const [attach, width] = useWidth();
  const question = answer && "question" in answer ? answer.question : null;
  const picture = useLoaded(kel, design, question, test);
  const { offer, loaded, given, moved, domain, problem, choice, choose } = picture;
  const isCurrent = loaded !== null && loaded.chart.test === test.name;
  const drawn = useMemo(() => {
    if (!loaded || !isCurrent || width < 200) return null;
    const pictured: State = { test, loaded, given, moved, domain };
    const look: Look = { width, palette: paletteOf(theme), locale, font: fontOfScreen, standsAlone: false };
    try {
      const built = pictureOf(pictured);
      return built && { pictured, built, composed: built.draw(look) };
    } catch (reason) {
      return { failed: String(reason) };
    }
  }, [loaded, isCurrent, given, moved, domain, width, theme, locale, test]);

  const change = (changes: Changes) => {
    picture.expect(changes);
    for (const [name, value] of Object.entries(changes)) onChange(name, value);
  };

  if (!question) return null;
  const failure = drawn && "failed" in drawn ? drawn.failed : problem;
  return (
    <section class="pictures" aria-label={texts.pictures} aria-busy={picture.isBusy}>
      {offer && offer.kinds.length > 1 && (
        <Kinds kinds={offer.kinds} chosen={loaded?.kind ?? null} onChoose={(kind) => choose({ kind })} />
      )}
      {isTable(answer) && offer?.axes.length === 0 && <p class="pictures-note">{texts.oneDesign}</p>}
      <figure class="pictures-figure">
        <div class="pictures-stage" ref={attach}>
          {drawn && "built" in drawn && drawn.composed && <Drawing composed={drawn.composed} />}
          {drawn && "built" in drawn && drawn.composed && loaded && (
            <Grip
              state={drawn.pictured}
              placed={drawn.composed}
              locale={locale}
              question={question}
              onMove={(x, y) => picture.move({ x, y })}
              onChanges={change}
              onHold={picture.hold}
            />
          )}
        </div>
        {drawn && "built" in drawn && drawn.built && (
          <figcaption class="pictures-sentence">{drawn.built.sentence(locale)}</figcaption>
        )}
      </figure>
      {failure && <p class="pictures-note">{texts.notDrawn + failure}</p>}
      {loaded && isCurrent && (loaded.kind === "densities" || loaded.kind === "interval") && (
        <Slider
          state={{ test, loaded, given, moved, domain }}
          question={question}
          locale={locale}
          onMove={(x) => picture.move({ x, y: null })}
          onChanges={change}
        />
      )}
      {offer && loaded && isCurrent && (
        <Controls
          offer={offer}
          loaded={loaded}
          choice={choice}
          test={test}
          question={question}
          onChoose={choose}
          locale={locale}
        />
      )}
      {drawn && "built" in drawn && drawn.built && <Keeping picture={drawn.built} locale={locale} />}
    </section>
  );
}

function Drawing({ composed }: { composed: Composed }) {
  const put = (element: HTMLElement | null) => {
    if (element && element.firstChild !== composed.svg) element.replaceChildren(composed.svg);
  };
  return <div class="pictures-drawing" ref={put} style={{ height: `${composed.height}px` }} />;
}
