import { compiledModule } from "./compile.js";
import text from "./description.js";
import { openDoors } from "./doors.js";
import type { Answer, Chart, Conversion, Description, Failure, Table } from "./replies.js";
import type { ConvertRequest, DrawRequest, SolveRequest } from "./requests.js";

/** The planner in the thread that calls, which waits for each answer. For scripts, and for workers of your own. */
export interface DirectKelpower {
  readonly version: string;
  describe(): Description;
  solve(request: SolveRequest): Answer | Failure;
  tabulate(request: SolveRequest): Table | Failure;
  draw(request: DrawRequest): Chart | Failure;
  convert(request: ConvertRequest): Conversion | Failure;
  /** The same with the texts of the C interface: a request in JSON, which is answered in JSON. */
  ask(door: "solve" | "draw" | "convert", request: string): string;
}

/** Starts the planner in this thread. */
export async function open(): Promise<DirectKelpower> {
  const doors = await openDoors(await compiledModule());
  const description = JSON.parse(text) as Description;
  return {
    version: doors.version,
    describe: () => description,
    solve: (request) => JSON.parse(doors.ask("solve", JSON.stringify(request))) as Answer | Failure,
    tabulate: (request) => JSON.parse(doors.ask("solve", JSON.stringify(request))) as Table | Failure,
    draw: (request) => JSON.parse(doors.ask("draw", JSON.stringify(request))) as Chart | Failure,
    convert: (request) => JSON.parse(doors.ask("convert", JSON.stringify(request))) as Conversion | Failure,
    ask: (door, request) => doors.ask(door, request),
  };
}
