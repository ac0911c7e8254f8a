import { load } from "kelpower";

const kel = await load();
const answer = await kel.solve({ test: "two-means", inputs: { "effect-d": 0.5, power: 0.8 } });
document.getElementById("app")!.textContent = "error" in answer ? answer.error.message : answer.sentence;
