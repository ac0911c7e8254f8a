/** Taking hold of the design: in the picture, or by a slider below it. */

import { useRef } from "preact/hooks";
import { asksForSizes, onTrack, stepped, trackOf } from "./axes";
import type { Track } from "./axes";
import { curveMark, surfaceMark } from "./build";
import type { State } from "./build";
import { capital, markText, place, shownQuantity } from "./caption";
import type { Placed } from "./plots";
import type { Composed } from "./frame";
import { Handle } from "./handle";
import type { Answer } from "./model";
import { movedAlong, sizesThatAreFound } from "./move";
import type { Changes } from "./move";
import { shown } from "./numbers";
import { valueAt, valuesOf } from "./series";
import { powerAt, surfaceFor } from "./surface";
import { texts } from "./texts";

function isPlaced(composed: Composed): composed is Placed {
  return "toX" in composed;
}

interface GripProps {
  state: State;
  placed: Composed;
  question: Answer["question"];
  locale: string;
  onMove(x: number, y: number | null): void;
  onChanges(changes: Changes): void;
  onHold(holds: boolean): void;
}

/** Where the design can go along the first axis: of a curve to the sizes that can be found, where sizes are asked for. */
function trackFor({ loaded, given }: State, question: Answer["question"]): Track {
  const { chart, axis, up } = loaded;
  const track = trackOf(chart, axis);
  const found = up ? null : sizesThatAreFound(chart, axis, given, question);
  return found ? { ...track, points: found } : track;
}

/** What changes when the design goes to a place of the picture; null where it cannot. */
function changesAt(state: State, question: Answer["question"], x: number, y: number | null): Changes | null {
  const { loaded, given } = state;
  const { chart, axis, up } = loaded;
  if (!up || y === null) return movedAlong(axis, x, chart, given, question);
  const upwards = movedAlong(up, y, chart, given, question);
  if (!upwards) return null;
  if (!axis.isOfSizes || !asksForSizes(question)) {
    const across = movedAlong(axis, x, chart, given, question);
    return across && { ...across, ...upwards };
  }
  const power = powerAt(surfaceFor(chart, [axis, up]), x, y);
  if (power === null || power <= 0 || power >= 1) return upwards;
  return { ...upwards, power: Math.max(0.001, Math.floor(power * 1000) / 1000) };
}

/** False in a gap of the picture. */
function hasValue({ loaded }: State, x: number, y: number | null): boolean {
  const { chart, axis, up } = loaded;
  if (up && y !== null) return powerAt(surfaceFor(chart, [axis, up]), x, y) !== null;
  return valueAt(chart.x, valuesOf(chart, chart.curves[0]!), x) !== null;
}

/** The design can be taken hold of where the picture has one place for it. */
export function Grip({ state, placed, question, locale, onMove, onChanges, onHold }: GripProps) {
  const pending = useRef<{ x: number; y: number | null } | null>(null);
  const { loaded } = state;
  const { chart, axis, up } = loaded;
  if (!isPlaced(placed) || chart.curves.length > 1) return null;
  const onSurface = up ? surfaceMark(state) : null;
  const onCurve = up ? null : curveMark(state);
  const mark = onSurface ?? onCurve;
  if (!mark || !changesAt(state, question, mark.x, onSurface ? onSurface.y : null)) return null;

  const track = trackFor(state, question);
  const trackUp = up ? trackOf(chart, up, chart.y) : null;
  const go = (x: number, y: number | null) => {
    if (!hasValue(state, x, y)) return;
    onMove(x, y);
    const isFirst = pending.current === null;
    pending.current = { x, y };
    if (isFirst) requestAnimationFrame(flush);
  };
  const flush = () => {
    const to = pending.current;
    pending.current = null;
    const changes = to && changesAt(state, question, to.x, to.y);
    if (changes) onChanges(changes);
  };
  const drag = (x: number, y: number) => {
    onHold(true);
    go(onTrack(track, placed.fromX(x)), trackUp ? onTrack(trackUp, placed.fromY(y)) : null);
  };
  const step = (across: number, upwards: number) => {
    go(
      across ? stepped(track, mark.x, across) : mark.x,
      trackUp ? (upwards ? stepped(trackUp, mark.y, upwards) : mark.y) : null,
    );
  };
  const text = onSurface
    ? `${place(axis, onSurface.x, locale)}, ${place(up!, onSurface.y, locale)}, ${texts.power} ${shownQuantity("power", onSurface.power, locale)}`
    : markText(axis, mark.x, chart.quantity, mark.y, locale);
  return (
    <Handle
      x={placed.toX(mark.x)}
      y={placed.toY(loaded.kind === "saw" ? (loaded.teeth?.find(({ n }) => n === mark.x)?.power ?? mark.y) : mark.y)}
      label={up ? `${capital(texts.design)}: ${axis.title}; ${up.title}` : `${capital(texts.design)}: ${axis.title}`}
      value={mark.x}
      least={track.from}
      most={track.to}
      valueText={text}
      isSurface={up !== null}
      onDrag={drag}
      onStep={step}
      onEnd={() => onHold(false)}
    />
  );
}

interface SliderProps {
  state: State;
  question: Answer["question"];
  locale: string;
  onMove(x: number): void;
  onChanges(changes: Changes): void;
}

/** Moves an input under a picture that has no place for the design. */
export function Slider({ state, question, locale, onMove, onChanges }: SliderProps) {
  const { loaded, given } = state;
  const { chart, axis } = loaded;
  const mark = curveMark(state);
  if (!mark || !movedAlong(axis, mark.x, chart, given, question)) return null;
  const track = trackFor(state, question);
  const go = (x: number) => {
    const to = onTrack(track, x);
    onMove(to);
    const changes = movedAlong(axis, to, chart, given, question);
    if (changes) onChanges(changes);
  };
  return (
    <label class="pictures-slider">
      <span>{capital(axis.title)}</span>
      <input
        type="range"
        min={track.from}
        max={track.to}
        step={track.points ? 1 : track.step}
        value={mark.x}
        aria-valuetext={place(axis, mark.x, locale)}
        onInput={(event) => go(Number(event.currentTarget.value))}
      />
      <output>{shown(mark.x, locale, 6)}</output>
    </label>
  );
}
