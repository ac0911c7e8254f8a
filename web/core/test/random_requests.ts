import type { Description, Parameter } from "kelpower";

export interface Asked {
  readonly door: "solve" | "draw" | "convert";
  readonly request: string;
}

type Draw = () => number;
type Inputs = Record<string, unknown>;

/** Numbers from 0 to 1 that a seed decides: mulberry32 of Tommy Ettinger. */
function randomNumbers(seed: number): Draw {
  let state = seed >>> 0;
  return () => {
    state = (state + 0x6d2b79f5) >>> 0;
    let mixed = Math.imul(state ^ (state >>> 15), state | 1);
    mixed ^= mixed + Math.imul(mixed ^ (mixed >>> 7), mixed | 61);
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 2 ** 32;
  };
}

/** Flags and words that ask for exact distributions, whose searches may take seconds. */
const SLOW = ["exact", "method", "random"];

export class RandomRequests {
  private readonly draw: Draw;

  constructor(
    private readonly description: Description,
    seed: number,
  ) {
    this.draw = randomNumbers(seed);
  }

  next(): Asked {
    const kind = this.draw();
    if (kind < 0.15) return this.conversion();
    if (kind < 0.35) return this.chart();
    return this.design();
  }

  private pick<Item>(items: readonly Item[]): Item {
    return items[Math.floor(this.draw() * items.length)] as Item;
  }

  private happens(share: number): boolean {
    return this.draw() < share;
  }

  private between(from: number, to: number): number {
    return from + (to - from) * this.draw();
  }

  /** A number as people write it, or one with all its digits. */
  private written(value: number): number {
    return this.happens(0.8) ? Number(value.toPrecision(3)) : value;
  }

  private number({ limits }: Parameter): number {
    const least = limits.minimum ?? limits["exclusive-minimum"] ?? -Infinity;
    const most = limits.maximum ?? limits["exclusive-maximum"] ?? Infinity;
    if (limits.whole) return Math.round(Math.exp(this.between(Math.log(least), Math.log(Math.min(most, 250)))));
    if (least > -Infinity && most < Infinity && most - least <= 2) {
      return this.written(this.between(least + 0.01, most - 0.01));
    }
    if (least >= 0) return this.written(Math.max(least, Math.exp(this.between(Math.log(0.05), Math.log(20)))));
    return this.written(this.between(Math.max(least, -1.5), Math.min(most, 1.5)) * (most < Infinity ? 1 : 10));
  }

  private value(parameter: Parameter, groups: number): unknown {
    if (parameter.kind === "flag") return true;
    if (parameter.kind === "choice") return this.pick(parameter.choices ?? []);
    if (parameter.kind === "number") return this.number(parameter);
    const length = parameter.length ?? groups;
    return Array.from({ length }, () => this.number(parameter));
  }

  /** Inputs of a route of the test, and some of those that it may have besides. */
  private inputs(test: Description["tests"][number], question?: string): Inputs {
    const route = this.pick(test.routes.filter((each) => !question || each.question === question));
    const groups = test.groups === "k" ? 2 + Math.floor(this.draw() * 3) : test.groups;
    const searches = route.question.startsWith("sample-size");
    const names = [
      ...route.needs,
      ...route.accepts.filter((name) => this.happens(0.15) && !(searches && SLOW.includes(name))),
    ];
    if (searches && names.includes("exact")) names.splice(names.indexOf("exact"), 1);
    if (route.question === "half-width") names.push("interval");
    if (route.question === "sample-size") names.push("power");
    if (route.question === "sample-size-for-half-width") names.push("half-width");
    if (this.happens(0.3)) names.push("alpha");
    return this.valuesOf(test.parameters, names, groups);
  }

  private valuesOf(parameters: readonly Parameter[], names: readonly string[], groups: number): Inputs {
    const inputs: Inputs = {};
    for (const name of names) {
      const parameter = parameters.find((each) => each.name === name);
      if (parameter) inputs[name] = this.value(parameter, groups);
    }
    if ("power" in inputs) inputs["power"] = this.written(this.between(0.4, 0.99));
    if ("alpha" in inputs) inputs["alpha"] = this.written(Math.exp(this.between(Math.log(1e-4), Math.log(0.3))));
    return inputs;
  }

  private design(): Asked {
    const test = this.pick(this.description.tests);
    const inputs = this.happens(0.3) ? { ...this.pick(test.examples).inputs } : this.inputs(test);
    const members = ["explain", "densities", "calls", "text"].filter(() => this.happens(0.3));
    const flags = Object.fromEntries(members.map((name) => [name, true]));
    const names = this.pick(["dash", "underscore"]);
    return { door: "solve", request: JSON.stringify({ test: test.name, inputs, names, ...flags }) };
  }

  private chart(): Asked {
    const test = this.pick(this.description.tests);
    const inputs = this.inputs(test, this.pick(["power", "sample-size"]));
    for (const name of SLOW) delete inputs[name];
    const [x, y] = [this.pick(test.axes).name, this.pick(test.axes).name];
    const chart = this.happens(0.2) ? `${x}-${y}` : x;
    return { door: "draw", request: JSON.stringify({ test: test.name, inputs, chart }) };
  }

  private conversion(): Asked {
    const { parameters, conversions } = this.description.effects;
    const conversion = this.pick(conversions);
    const names = [...conversion.needs, ...conversion.accepts.filter(() => this.happens(0.3))];
    const inputs = this.valuesOf(parameters, names, 2);
    return { door: "convert", request: JSON.stringify({ inputs, explain: this.happens(0.3) }) };
  }
}
