// Starts the planner, and shows the page once it is there.

import { load } from "kelpower";
import { render } from "preact";
import { App } from "./app";
import { answerWhileTyping } from "./live";
import { description, kel, readFromAddress, readStep } from "./state";
import "./style.css";
import { texts } from "./texts";

async function start(root: HTMLElement): Promise<void> {
  root.textContent = texts.loading;
  try {
    const planner = await load();
    description.value = planner.describe();
    kel.value = planner;
  } catch {
    root.textContent = texts.loadFailed;
    return;
  }
  readFromAddress();
  addEventListener("popstate", readStep);
  addEventListener("hashchange", readFromAddress);
  root.textContent = "";
  answerWhileTyping();
  render(<App />, root);
}

const root = document.getElementById("app");
if (root) void start(root);
