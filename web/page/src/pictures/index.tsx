/** The pictures of a design: those that fit its answer, to look at, to take hold of and to save. */

import { useCallback, useEffect, useMemo, useRef, useState } from "preact/hooks";
import { asksForSizes, canBePaired, isOfPower, onTrack, stepped, trackOf } from "./axes";
import type { Axis, Track } from "./axes";
import { curveMark, pictureOf, surfaceMark } from "./build";
import type { Picture, State } from "./build";
import { capital, markText, place, shownQuantity } from "./caption";
import { comparables } from "./compare";
import { CompareControls } from "./compare_controls";
import { powerAt, surfaceFor } from "./contour";
import type { Placed } from "./curve";
import { domainOf, hull } from "./densities";
import { fontOfScreen } from "./frame";
import type { Composed, Look } from "./frame";
import { Handle } from "./handle";
import { effectAxis, load, NotDrawn, offerFor, rangeOf } from "./load";
import type { Choice, Kind, Loaded, Offer, Range } from "./load";
import { isTable } from "./model";
import type { Answer, Core, Design, Failure, Table, Test, Value } from "./model";
import { movedAlong, sizesThatAreFound } from "./move";
import type { Changes } from "./move";
import { shown } from "./numbers";
import { fewRows } from "./numbers_of";
import { paletteOf } from "./palette";
import type { Theme } from "./palette";
import { savePicture } from "../save/picture";
import type { PictureFormat } from "../save/picture";
import { valueAt, valuesOf } from "./series";
import { texts } from "./texts";
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

/** The width of an element, as it changes. */
function useWidth(): [(element: HTMLElement | null) => void, number] {
  const [width, setWidth] = useState(0);
  const observer = useRef<ResizeObserver | null>(null);
  const attach = useCallback((element: HTMLElement | null) => {
    observer.current?.disconnect();
    if (!element) return;
    setWidth(Math.floor(element.clientWidth));
    observer.current = new ResizeObserver(() => setWidth(Math.floor(element.clientWidth)));
    observer.current.observe(element);
  }, []);
  return [attach, width];
}

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

function Kinds({ kinds, chosen, onChoose }: { kinds: Kind[]; chosen: Kind | null; onChoose(kind: Kind): void }) {
  return (
    <fieldset class="pictures-kinds">
      <legend>{texts.pictures}</legend>
      {kinds.map((kind) => (
        <label key={kind} class={kind === chosen ? "is-chosen" : ""}>
          <input type="radio" name="pictures-kind" checked={kind === chosen} onChange={() => onChoose(kind)} />
          <span>{texts.kinds[kind]}</span>
        </label>
      ))}
    </fieldset>
  );
}

function AxisChoice(props: { label: string; axes: Axis[]; chosen: string; onChoose(name: string): void }) {
  return (
    <label class="pictures-choice">
      <span>{props.label}</span>
      <select value={props.chosen} onChange={(event) => props.onChoose(event.currentTarget.value)}>
        {props.axes.map((axis) => (
          <option key={axis.name} value={axis.name} selected={axis.name === props.chosen}>
            {axis.title}
          </option>
        ))}
      </select>
    </label>
  );
}

interface ControlsProps {
  offer: Offer;
  loaded: Loaded;
  choice: Choice;
  test: Test;
  question: Answer["question"];
  locale: string;
  onChoose(changes: Partial<Choice>): void;
}

function Controls({ offer, loaded, choice, test, question, locale, onChoose }: ControlsProps) {
  const { kind, axis, up, chart } = loaded;
  if (kind === "saw" || kind === "interval") return null;
  const across = kind === "contour" ? offer.axes.filter((one) => effectAxis(offer.axes, one)) : offer.axes;
  const hasSizes = kind === "curve" && asksForSizes(question) && !axis.isOfSizes;
  const value = isOfPower(question) ? "power" : "half-width";
  return (
    <div class="pictures-controls">
      <AxisChoice
        label={kind === "densities" ? texts.move : texts.across}
        axes={across}
        chosen={axis.name}
        onChoose={(name) => onChoose({ axis: name, compare: null })}
      />
      {kind === "contour" && up && (
        <AxisChoice
          label={texts.up}
          axes={offer.axes.filter((one) => canBePaired(axis, one))}
          chosen={up.name}
          onChoose={(name) => onChoose({ up: name })}
        />
      )}
      {hasSizes && (
        <label class="pictures-choice">
          <span>{texts.show}</span>
          <select
            value={choice.showsSizes ? "sizes" : "value"}
            onChange={(event) => onChoose({ showsSizes: event.currentTarget.value === "sizes" })}
          >
            <option value="sizes">{texts.quantityChoice["sample-size"]}</option>
            <option value="value">{texts.quantityChoice[value]}</option>
          </select>
        </label>
      )}
      {kind === "curve" && offer.answer && (
        <CompareControls
          offered={comparables(test, chart, offer.answer.inputs)}
          chosen={choice.compare}
          locale={locale}
          onChoose={(compare) => onChoose({ compare })}
        />
      )}
    </div>
  );
}

function Drawing({ composed }: { composed: Composed }) {
  const put = (element: HTMLElement | null) => {
    if (element && element.firstChild !== composed.svg) element.replaceChildren(composed.svg);
  };
  return <div class="pictures-drawing" ref={put} style={{ height: `${composed.height}px` }} />;
}

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
function Grip({ state, placed, question, locale, onMove, onChanges, onHold }: GripProps) {
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
function Slider({ state, question, locale, onMove, onChanges }: SliderProps) {
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

function Keeping({ picture, locale }: { picture: Picture; locale: string }) {
  const formats: PictureFormat[] = ["svg", "png", "csv"];
  return (
    <div class="pictures-keeping">
      <Numbers picture={picture} locale={locale} />
      <div class="pictures-save" role="group" aria-label={texts.saveAs}>
        <span aria-hidden="true">{texts.saveAs}</span>
        {formats.map((format) => (
          <button key={format} type="button" onClick={() => void savePicture(picture, format, locale)}>
            {texts[format]}
          </button>
        ))}
      </div>
    </div>
  );
}

/** The picture for those who would rather read numbers. */
function Numbers({ picture, locale }: { picture: Picture; locale: string }) {
  const [isOpen, setOpen] = useState(false);
  const table = isOpen ? fewRows(picture.numbers()) : null;
  return (
    <details class="pictures-numbers" onToggle={(event) => setOpen(event.currentTarget.open)}>
      <summary>{texts.table}</summary>
      {table && (
        <div class="pictures-scroll" tabIndex={0} role="region" aria-label={texts.table}>
          <table>
            <thead>
              <tr>
                {table.columns.map((column) => (
                  <th key={column} scope="col">
                    {column}
                  </th>
                ))}
              </tr>
            </thead>
            <tbody>
              {table.rows.map((row, i) => (
                <tr key={i}>
                  {row.map((value, j) => (
                    <td key={j}>{value === null ? "–" : shown(value, locale)}</td>
                  ))}
                </tr>
              ))}
            </tbody>
          </table>
        </div>
      )}
    </details>
  );
}
