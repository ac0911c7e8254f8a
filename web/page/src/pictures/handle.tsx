/** The dot of the design as something to take hold of: with a mouse, a finger or the arrow keys. */

import { useRef } from "preact/hooks";

export interface HandleProps {
  x: number;
  y: number;
  label: string;
  value: number;
  least: number;
  most: number;
  valueText: string;
  isSurface: boolean;
  /** To a place in the pixels of the picture. */
  onDrag(x: number, y: number): void;
  /** By so many steps across and up. */
  onStep(across: number, up: number): void;
  onEnd(): void;
}

const steps: Record<string, [number, number]> = {
  ArrowLeft: [-1, 0],
  ArrowRight: [1, 0],
  ArrowUp: [0, 1],
  ArrowDown: [0, -1],
  PageUp: [0, 10],
  PageDown: [0, -10],
  Home: [-1e9, 0],
  End: [1e9, 0],
};

export function Handle(props: HandleProps) {
  const { x, y, isSurface, onDrag, onStep, onEnd } = props;
  const grip = useRef<{ dx: number; dy: number } | null>(null);

  const place = (event: PointerEvent) => {
    const box = (event.currentTarget as HTMLElement).parentElement!.getBoundingClientRect();
    return { x: event.clientX - box.left, y: event.clientY - box.top };
  };
  const down = (event: PointerEvent) => {
    if (event.button !== 0) return;
    const at = place(event);
    grip.current = { dx: x - at.x, dy: y - at.y };
    (event.currentTarget as HTMLElement).setPointerCapture(event.pointerId);
  };
  const move = (event: PointerEvent) => {
    if (!grip.current) return;
    const at = place(event);
    onDrag(at.x + grip.current.dx, at.y + grip.current.dy);
  };
  const end = () => {
    if (!grip.current) return;
    grip.current = null;
    onEnd();
  };
  const key = (event: KeyboardEvent) => {
    const step = steps[event.key];
    if (!step || event.ctrlKey || event.metaKey || event.altKey) return;
    event.preventDefault();
    const factor = event.shiftKey ? 10 : 1;
    const [across, up] = step;
    if (isSurface) onStep(across * factor, up * factor);
    else onStep((across + up) * factor, 0);
  };

  return (
    <div
      class="pictures-handle"
      role="slider"
      tabIndex={0}
      aria-label={props.label}
      aria-valuemin={props.least}
      aria-valuemax={props.most}
      aria-valuenow={props.value}
      aria-valuetext={props.valueText}
      style={{ left: `${x}px`, top: `${y}px` }}
      onPointerDown={down}
      onPointerMove={move}
      onPointerUp={end}
      onPointerCancel={end}
      onKeyDown={key}
    />
  );
}
