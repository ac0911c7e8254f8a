/** Files that people keep: pictures, their numbers, designs, and the plan of a study. */

import type { Design } from "../pictures/model";
import { designsToJson } from "./designs";
import { download } from "./download";

export { csvOf } from "./csv";
export { designsToJson, loadDesigns } from "./designs";
export type { LoadedDesigns, SavedDesign } from "./designs";
export { savePicture } from "./picture";
export type { PictureFormat } from "./picture";
export { planToPrint } from "./plan";
export type { PlanRequest } from "./plan";

/** Saves designs as the file that `kelpower run` answers. */
export function saveDesigns(designs: Design[], name = "kelpower-designs"): void {
  download(designsToJson(designs), `${name}.json`, "application/json");
}
