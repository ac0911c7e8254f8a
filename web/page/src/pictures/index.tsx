/** The pictures of a design: those that fit its answer, to look at, to take hold of and to save. */

import { useEffect, useMemo, useRef, useState } from "preact/hooks";
import { pictureOf } from "./build";
import type { State } from "./build";
import { Controls, Kinds } from "./choices";
import { domainOf, hull } from "./densities";
import { fontOfScreen } from "./frame";
import type { Composed, Look } from "./frame";
import { Grip, Slider } from "./grip";
import { Keeping } from "./keeping";
import { load, NotDrawn, offerFor, rangeOf } from "./load";
import type { Choice, Loaded, Offer, Range } from "./load";
import { isTable } from "./model";
import type { Answer, Core, Design, Failure, Table, Test, Value } from "./model";
import type { Changes } from "./move";
import { paletteOf } from "./palette";
import type { Theme } from "./palette";
import { texts } from "./texts";
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

const firstChoice: Choice = { kind: null, axis: "n", up: "", showsSizes: true, compare: null };

function isAtEnd(range: Range | null, moved: { x: number; y: number | null }): boolean {
  const isEnd = (at: number | null | undefined, i: number) => {
    const [from, to] = [range?.from[i], range?.to[i]];
    if (from === undefined || to === undefined || at === null || at === undefined) return false;
    return at > to - 0.02 * (to - from) || at < from;
  };
  return isEnd(moved.x, 0) || isEnd(moved.y, 1);
}

interface Loading {
  offer: Offer | null;
  loaded: Loaded | null;
  /** Of which inputs. */
  given: Design["inputs"];
  problem: string;
}

const nothing: Loading = { offer: null, loaded: null, given: {}, problem: "" };

export function Pictures(props: PicturesProps) {
  const { design, answer, description: test, kel, onChange, theme = "light", locale = "en" } = props;
  const [choice, setChoice] = useState<Choice>(firstChoice);
  const [state, setState] = useState<Loading>(nothing);
  const [moved, setMoved] = useState<{ x: number; y: number | null } | null>(null);
  const [domain, setDomain] = useState<[number, number] | null>(null);
  const [attach, width] = useWidth();
  const range = useRef<Range | null>(null);
  // A change that the picture itself made keeps its scales; one of the form fits them anew.
  const isOwn = useRef(false);
  const isHeld = useRef(false);
  const [turn, setTurn] = useState(0);

  const question = answer && "question" in answer ? answer.question : null;
  const designKey = JSON.stringify([design, question]);
  const drawnKey = useRef("");
  const choose = (changes: Partial<Choice>) => {
    range.current = null;
    setDomain(null);
    setMoved(null);
    setChoice({ ...choice, ...changes });
  };

  useEffect(() => {
    setChoice(firstChoice);
    range.current = null;
  }, [test.name]);

  useEffect(() => {
    if (!question || isHeld.current) return;
    const keeps = isOwn.current;
    isOwn.current = false;
    // At the very end of an axis there is more to see beyond.
    if (!keeps || (moved && isAtEnd(range.current, moved))) range.current = null;
    const controller = new AbortController();
    const run = async () => {
      const offer = await offerFor(kel, design, question, test, controller.signal);
      if (!offer.kinds.length) return setState({ ...nothing, offer, given: design.inputs });
      const loaded = await load(kel, design, question, offer, choice, range.current, controller.signal);
      if (controller.signal.aborted) return;
      const { densities } = loaded;
      range.current = rangeOf(loaded.chart);
      setDomain((before) =>
        densities ? (keeps && before ? hull(before, domainOf(densities)) : domainOf(densities)) : null,
      );
      setMoved(null);
      drawnKey.current = designKey;
      setState({ offer, loaded, given: design.inputs, problem: "" });
    };
    run().catch((reason: unknown) => {
      if (controller.signal.aborted) return;
      const problem = (reason instanceof NotDrawn && reason.message) || texts.unknownReason;
      const isSameDesign = drawnKey.current === designKey;
      // What was chosen for another design may not fit this one.
      if (!isSameDesign && choice !== firstChoice) return choose(firstChoice);
      setState((before) => ({ ...before, loaded: isSameDesign ? before.loaded : null, problem }));
    });
    return () => controller.abort();
  }, [designKey, choice, turn, kel, test]);

  const { offer, loaded, given, problem } = state;
  const isCurrent = loaded !== null && loaded.chart.test === test.name;
  const drawn = useMemo(() => {
    if (!loaded || !isCurrent || width < 200) return null;
    const pictured: State = { test, loaded, given, moved, domain };
    const look: Look = { width, palette: paletteOf(theme), locale, font: fontOfScreen, standsAlone: false };
    try {
      const picture = pictureOf(pictured);
      return picture && { pictured, picture, composed: picture.draw(look) };
    } catch (reason) {
      return { failed: String(reason) };
    }
  }, [loaded, isCurrent, given, moved, domain, width, theme, locale, test]);

  const emit = (changes: Changes) => {
    isOwn.current = true;
    for (const [name, value] of Object.entries(changes)) onChange(name, value);
  };

  if (!question) return null;
  const failure = drawn && "failed" in drawn ? drawn.failed : problem;
  return (
    <section class="pictures" aria-label={texts.pictures}>
      {offer && offer.kinds.length > 1 && (
        <Kinds kinds={offer.kinds} chosen={loaded?.kind ?? null} onChoose={(kind) => choose({ kind })} />
      )}
      {isTable(answer) && offer?.axes.length === 0 && <p class="pictures-note">{texts.oneDesign}</p>}
      <figure class="pictures-figure">
        <div class="pictures-stage" ref={attach}>
          {drawn && "picture" in drawn && drawn.composed && <Drawing composed={drawn.composed} />}
          {drawn && "picture" in drawn && drawn.composed && loaded && (
            <Grip
              state={drawn.pictured}
              placed={drawn.composed}
              locale={locale}
              question={question}
              onMove={(x, y) => setMoved({ x, y })}
              onChanges={emit}
              onHold={(holds) => {
                isHeld.current = holds;
                if (!holds) setTurn(turn + 1);
              }}
            />
          )}
        </div>
        {drawn && "picture" in drawn && drawn.picture && (
          <figcaption class="pictures-sentence">{drawn.picture.sentence(locale)}</figcaption>
        )}
      </figure>
      {failure && <p class="pictures-note">{texts.notDrawn + failure}</p>}
      {loaded && isCurrent && (loaded.kind === "densities" || loaded.kind === "interval") && (
        <Slider
          state={{ test, loaded, given, moved, domain }}
          question={question}
          locale={locale}
          onMove={(x) => setMoved({ x, y: null })}
          onChanges={emit}
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
      {drawn && "picture" in drawn && drawn.picture && <Keeping picture={drawn.picture} locale={locale} />}
    </section>
  );
}

function Drawing({ composed }: { composed: Composed }) {
  const put = (element: HTMLElement | null) => {
    if (element && element.firstChild !== composed.svg) element.replaceChildren(composed.svg);
  };
  return <div class="pictures-drawing" ref={put} style={{ height: `${composed.height}px` }} />;
}
