// A radio button whose whole row can be pressed.

interface ChoiceProps {
  group: string;
  value: string;
  chosen: boolean;
  label: string;
  help?: string;
  onChoose: () => void;
}

export function Choice({ group, value, chosen, label, help, onChoose }: ChoiceProps) {
  return (
    <label class={`choice ${chosen ? "chosen" : ""} ${value === "any" ? "any" : ""}`}>
      <input
        type="radio"
        name={group}
        value={value}
        checked={chosen}
        data-testid={`${group}-${value}`}
        onChange={onChoose}
      />
      <span class="choice-words">
        <span class="choice-label">{label}</span>
        {help && <span class="choice-help">{help}</span>}
      </span>
    </label>
  );
}
