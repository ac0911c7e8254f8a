/** Loads what the pictures need, again for each design and choice, and keeps their scales while the design is moved. */

import { useEffect, useRef, useState } from "preact/hooks";
import { domainOf, hull } from "./densities";
import { load, NotDrawn, offerFor, rangeOf } from "./load";
import type { Choice, Loaded, Offer, Range } from "./load";
import type { Core, Design, Inputs, Question, Test } from "./model";
import type { Changes } from "./move";
import { texts } from "./texts";

const firstChoice: Choice = { kind: null, axis: "n", up: "", showsSizes: true, compare: null };

export interface Moved {
  x: number;
  y: number | null;
}

export interface LoadedState {
  offer: Offer | null;
  loaded: Loaded | null;
  /** The inputs of which it was loaded, as the person gave them. */
  given: Inputs;
  /** What the densities show at least. */
  domain: [number, number] | null;
  problem: string;
}

const nothing: LoadedState = { offer: null, loaded: null, given: {}, domain: null, problem: "" };

/** Beyond this a change that a picture asked for does not come any more. */
const patience = 1500;

function isAtEnd(range: Range | null, moved: Moved): boolean {
  const isEnd = (at: number | null, i: number) => {
    const [from, to] = [range?.from[i], range?.to[i]];
    if (from === undefined || to === undefined || at === null) return false;
    return at > to - 0.02 * (to - from) || at < from;
  };
  return isEnd(moved.x, 0) || isEnd(moved.y, 1);
}

/** A number stands for a list of it. */
function isSame(given: unknown, wanted: unknown): boolean {
  const list = (value: unknown) => (Array.isArray(value) ? value : [value]);
  const [a, b] = [list(given), list(wanted)];
  const length = Math.max(a.length, b.length);
  const at = (values: unknown[], i: number) => (values.length === 1 ? values[0] : values[i]);
  return Array.from({ length }, (_, i) => i).every((i) => at(a, i) === at(b, i));
}

export function hasChanges(inputs: Inputs, changes: Changes): boolean {
  return Object.entries(changes).every(([name, value]) => isSame(inputs[name], value));
}

export interface LoadedPicture extends LoadedState {
  /** What is shown is not yet of this design. */
  isBusy: boolean;
  choice: Choice;
  choose(changes: Partial<Choice>): void;
  /** Where the design was moved to since. */
  moved: Moved | null;
  move(to: Moved): void;
  /** The picture itself has asked for these changes. */
  expect(changes: Changes): void;
  /** While the design is held, its picture stays. */
  hold(holds: boolean): void;
}

export function useLoaded(core: Core, design: Design, question: Question | null, test: Test): LoadedPicture {
  const [choice, setChoice] = useState<Choice>(firstChoice);
  const [state, setState] = useState<LoadedState>(nothing);
  const [moved, setMoved] = useState<Moved | null>(null);
  const [turn, setTurn] = useState(0);
  const range = useRef<Range | null>(null);
  const expected = useRef<Changes | null>(null);
  const timer = useRef<ReturnType<typeof setTimeout> | undefined>(undefined);
  const isHeld = useRef(false);
  const drawnKey = useRef("");
  const failedKey = useRef("");
  const designKey = JSON.stringify([design, question]);

  const begin = (next: Choice) => {
    range.current = null;
    expected.current = null;
    setMoved(null);
    setState((before) => ({ ...before, domain: null }));
    setChoice(next);
  };

  useEffect(() => begin(firstChoice), [test.name]);

  useEffect(() => {
    if (!question || isHeld.current) return;
    const isOwn = expected.current !== null;
    const hasCome = isOwn && hasChanges(design.inputs, expected.current!);
    const isMarked = state.loaded?.kind === "curve" || state.loaded?.kind === "contour" || state.loaded?.kind === "saw";
    // What is shown already is not drawn again for a design that is on its way to the one that was asked for.
    if (isOwn && !hasCome && isMarked) return;
    if (hasCome) {
      expected.current = null;
      clearTimeout(timer.current);
    }
    // A change of the form fits the scales anew. At the very end of an axis there is more to see beyond.
    if (!isOwn || (moved && isAtEnd(range.current, moved))) range.current = null;
    const controller = new AbortController();
    const { signal } = controller;
    const run = async () => {
      const offer = await offerFor(core, design, question, test, signal);
      if (signal.aborted) return;
      if (!offer.kinds.length) {
        drawnKey.current = designKey;
        return setState({ ...nothing, offer, given: design.inputs });
      }
      const loaded = await load(core, design, question, offer, choice, range.current, signal);
      if (signal.aborted) return;
      range.current = rangeOf(loaded.chart);
      drawnKey.current = designKey;
      setMoved(null);
      setState((before) => {
        const shown = loaded.densities && domainOf(loaded.densities);
        const domain = shown && isOwn && before.domain ? hull(before.domain, shown) : shown;
        return { offer, loaded, given: design.inputs, domain, problem: "" };
      });
    };
    run().catch((reason: unknown) => {
      if (signal.aborted) return;
      const problem = (reason instanceof NotDrawn && reason.message) || texts.unknownReason;
      const isSameDesign = drawnKey.current === designKey;
      failedKey.current = designKey;
      // What was chosen for another design may not fit this one.
      if (!isSameDesign && choice !== firstChoice) return begin(firstChoice);
      setState((before) => ({ ...before, loaded: isSameDesign ? before.loaded : null, problem }));
    });
    return () => controller.abort();
  }, [designKey, choice, turn, core, test]);

  useEffect(() => () => clearTimeout(timer.current), []);

  const giveUpLater = () => {
    clearTimeout(timer.current);
    timer.current = setTimeout(() => {
      if (isHeld.current) return giveUpLater();
      expected.current = null;
      setTurn((before) => before + 1);
    }, patience);
  };

  return {
    ...state,
    isBusy: question !== null && drawnKey.current !== designKey && failedKey.current !== designKey,
    choice,
    choose: (changes) => begin({ ...choice, ...changes }),
    moved,
    move: setMoved,
    expect: (changes) => {
      expected.current = { ...expected.current, ...changes };
      giveUpLater();
    },
    hold: (holds) => {
      isHeld.current = holds;
      if (!holds) setTurn((before) => before + 1);
    },
  };
}
