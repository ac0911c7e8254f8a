"""The page docs/other-programs.md: how other programs are asked what kelpower answers, with what they say.

page.py write KELPOWER PAGE    runs kelpower and R, and writes the page.
page.py check KELPOWER PAGE    the page is what they say now. Where R or its package pwr is not installed, only
                               kelpower's side is compared, what was left out is said, and the status is 77.

A call that kelpower calls the same must agree: a power within 1e-6, a size once it is rounded up. One that it says
differs must differ.
"""

import json
import math
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

QUESTIONS = [
    "mean --mean 104 --test-value 100 --sd 10 --n 40",
    "mean --effect-d 0.4 --power 0.8 --one-sided",
    "mean --sd 10 --n 40 --interval",
    "paired-means --means 25,21 --sds 8,7 --correlation 0.6 --n 30",
    "paired-means --mean-difference 4 --sd-difference 8 --power 0.9",
    "paired-means --sds 8,7 --correlation 0.6 --n 30 --interval",
    "two-means --effect-d 0.5 --power 0.8",
    "two-means --effect-d 0.6 --n 90,60 --one-sided",
    "two-means --means 52,47 --sd 10 --n 40",
    "two-means --means 52,47 --sd 10,14 --n 40",
    "two-means --sd 10,14 --n 40 --interval",
    "two-means --mean-difference 0 --sd 6 --n 60 --margin -2 --non-inferiority --alpha 0.025",
    "two-means --mean-difference 0.5 --sd 4 --n 90 --equivalence -2,2",
    "crossover --mean-ratio 0.95 --cv 0.25 --n 12 --equivalence 0.8,1.25",
    "crossover --mean-ratio 0.95 --cv 0.25 --n 18,17 --margin 0.8 --non-inferiority --alpha 0.025",
    "anova --means 10,12,15 --sd 6 --power 0.9",
    "anova --effect-f 0.25 --n 30,30,40",
    "anova --sd 6 --n 20 --groups 3 --interval",
    "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20",
    "contrast --coefficients 1,-1,0 --effect-d 0.5 --n 40 --one-sided",
    "pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20",
    "pairwise --pair 1,2 --groups 3 --sd 6 --n 20 --interval",
    "tukey --means 10,12,15 --sd 6 --pair 1,3 --n 20,20,30",
    "tukey --sd 6 --pair 1,2 --groups 3 --n 20 --interval",
    "dunnett --effect-d 0.6 --groups 4 --group 2 --n 113,57,57,57",
    "factorial --levels 2,3 --term 1,2 --effect-f 0.25 --n 30",
    "factorial --levels 2,3 --term 2 --means 10,12,15,10,11,12 --sd 4 --n 10,10,10,20,20,20",
    "ancova --means 400,450,500 --sd 120 --r-squared 0.3 --n 21",
    "ancova --effect-f 0.25 --groups 3 --covariates 2 --n 60 --approximate",
    "repeated-measures --effect interaction --groups 2 --measurements 4 --correlation 0.5 --effect-f 0.25 --n 12",
    "repeated-measures --effect within --measurements 4 --means 1.5,2.5,2,0 --sd 5 --correlation 0.2 --n 83",
    "regression --effect-f2 0.15 --predictors 5 --n 80",
    "regression --r-squared 0.3 --r-squared-reduced 0.25 --predictors 6 --tested 2 --n 139",
    "regression --r-squared 0.1 --predictors 5 --n 95 --random",
    "goodness-of-fit --proportions 0.5,0.25,0.15,0.1 --null-proportions 9,3,3,1 --n 300",
    "goodness-of-fit --effect-w 0.1 --df 20 --power 0.8",
    "contingency --table 0.05,0.35,0.1,0.075,0.25,0.175 --rows 2 --n 230",
    "contingency --effect-w 0.3 --rows 3 --columns 4 --power 0.8",
    "variance --variance-ratio 1.5 --n 60",
    "variance --sd 8 --null-sd 10 --n 45 --one-sided",
    "two-variances --variance-ratio 1.5 --n 193",
    "two-variances --sd 8,12 --n 40,60 --one-sided",
    "pearson --r 0.3 --n 84",
    "pearson --r 0.5 --null 0.2 --n 84 --one-sided --adjust-bias",
    "pearson --r 0.3 --n 84 --interval",
    "pearson --r 0.3 --null 0.6 --n 30 --exact",
    "two-correlations --correlations 0.75,0.88 --n 51,260",
    "dependent-correlations --r12 0.4 --r13 0.2 --r23 0.5 --n 144 --one-sided",
    "dependent-correlations --r12 0.1 --r34 0.2 --r13 0.5 --r14 0.4 --r23 -0.4 --r24 0.8 --n 886 --one-sided",
    "spearman --r 0.3 --n 84",
    "spearman --r 0.3 --n 84 --interval",
    "partial --r 0.3 --partialled-out 3 --n 84",
    "proportion --proportion 0.65 --null 0.5 --n 60",
    "proportion --proportion 0.65 --null 0.5 --n 60 --correction --one-sided",
    "proportion --proportion 0.65 --null 0.8 --n 72 --exact",
    "proportion --proportion 0.2 --n 40 --interval --interval-method wilson",
    "proportion --proportion 0.2 --n 40 --interval --interval-method clopper-pearson",
    "proportion --proportion 0.9 --null 0.85 --margin -0.1 --non-inferiority --n 54",
    "proportion --proportion 0.6 --null 0.6 --equivalence -0.1,0.1 --n 500 --exact",
    "paired-proportions --p12 0.08 --p21 0.32 --n 50",
    "paired-proportions --p12 0.08 --p21 0.32 --n 50 --exact --one-sided",
    "paired-proportions --p12 0.3 --p21 0.1 --n 100 --interval",
    "two-proportions --proportions 0.5,0.75 --n 50",
    "two-proportions --proportions 0.5,0.75 --power 0.8",
    "two-proportions --proportions 0.5,0.75 --n 50,100 --correction --one-sided",
    "two-proportions --proportions 0.5,0.75 --n 50 --method t",
    "two-proportions --proportions 0.5,0.75 --n 50 --method arcsine",
    "two-proportions --proportions 0.5,0.75 --n 50,100 --method likelihood-ratio",
    "two-proportions --proportions 0.5,0.75 --n 30 --method conditional",
    "two-proportions --proportions 0.8,0.6 --n 70,80 --interval --interval-method wald",
    "two-proportions --proportions 0.85,0.85 --margin -0.1 --non-inferiority --n 207",
    "two-proportions --proportions 0.5,0.5 --equivalence -0.1,0.1 --margin-method wald --n 429",
    "mann-whitney --effect-d 0.5 --n 50",
    "mann-whitney --effect-d 0.375 --n 134,67 --parent laplace --method lehmann",
    "mann-whitney --superiority 0.65 --n 40,80 --one-sided",
    "ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --probabilities2 0.05,0.1,0.35,0.3,0.2 --n 80",
    "ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --odds-ratio 2 --n 80 --method whitehead",
    "signed-rank --effect-d 0.5 --n 35",
    "signed-rank --positive-average 0.7 --n 40 --one-sided",
]

HEAD = """# The same question in other programs

`kelpower TEST ... --explain` tells how pwr, base R, G*Power and SAS are asked the same. This page has it for one
question or more of each test. The calls of R, with its package pwr, are run by the tests, which compare the answers;
their numbers stand behind the calls. G*Power and SAS are not run, so nothing here says that their numbers were seen:
their calls follow their manuals, and stand only where we are sure of them.

A size that R gives is not rounded up. Where a program's answer differs, the reason is said.
"""

TAIL = """
## Other differences

Some programs that are not asked above give other numbers. These were seen in the versions named.

- MKpower 1.1, `power.ancova(n = c(10, 20, 30), ...)`: takes the groups as equal unless `group.ratio` is given too.
  `ancova` takes the sizes as they are.
- PowerTOST 1.5-6, `power.RatioF`, which tests a ratio of means without logarithms: errs by some 1e-5, as its integral
  is taken at random points. kelpower has that test on the log scale only.
- pwrss 1.2.0, `power.f.mixed.anova`, and WebPower, `wp.rmanova`: multiply the noncentrality of the effect between
  subjects by epsilon. That effect has no sphericity to lack, and `repeated-measures` takes none there.
- pwrss 1.2.0, tests of means with a margin: their margin is standardized and lies in the null distribution, which is
  another hypothesis.
- statpsych and TrialSize, sizes for equivalence: always give each of the two tests half of the type II error. That is
  right in the middle of the limits for large samples only. `--equivalence` takes both tests together, exactly.
- powertools, `anova2way.F` without an interaction: its error keeps the degrees of freedom that the interaction had.
  `factorial` always has the interactions in its model.
- R, `ptukey` and `qtukey`: err by up to 1e-10. The studentized range here errs by less than 1e-13.
"""


def run_kelpower(program, question):
    done = subprocess.run([program, *question.split(), "--explain", "--format", "json"], capture_output=True, text=True,
                          check=True)
    return json.loads(done.stdout)


def answer_of(reply):
    """The kind of the answer and its value: a first size that was found, a power or a half-width."""
    results = reply["results"]
    if reply["question"] == "sample-size":
        return "size", results["n"][0] if isinstance(results["n"], list) else results["n"]
    kind = "half-width" if reply["question"].endswith("half-width") else "power"
    return kind, results[kind]


def runs_in_r(call):
    return call["program"] in ("R", "pwr") and "(" in call["call"]


def run_r(calls):
    """What R says to each call; None for those of pwr where it is not installed."""
    script = ["havePwr <- suppressWarnings(require(pwr, quietly = TRUE))"]
    for call in calls:
        line = f'cat(sprintf("%.17g\\n", {call["call"]}))'
        script.append(f'if (havePwr) {line} else cat("none\\n")' if call["program"] == "pwr" else line)
    with tempfile.NamedTemporaryFile("w", suffix=".R") as file:
        file.write("\n".join(script))
        file.flush()
        done = subprocess.run(["Rscript", "--vanilla", file.name], capture_output=True, text=True, check=True)
    answers = done.stdout.split()
    assert len(answers) == len(calls), done.stdout
    return [None if answer == "none" else float(answer) for answer in answers]


def disagreement(call, kind, ours, theirs, target):
    """Why the answers do not stand to each other as the call says; empty when they do."""
    is_size = re.search(r"\$n$", call["call"])
    if is_size:
        same = math.ceil(theirs - 1e-4) == ours
    else:
        same = abs(theirs - (target if kind == "size" else ours)) < 1e-6
    if same == call["same"]:
        return ""
    return f"{call['program']} says {theirs} to {call['call']}, which should {'' if call['same'] else 'not '}be {ours}"


def sections(program, with_r):
    """The text of the page after its head, and what is wrong."""
    replies = [(question, run_kelpower(program, question)) for question in QUESTIONS]
    asked = [call for _, reply in replies for call in reply["details"]["programs"] if runs_in_r(call)]
    said = dict(zip(map(id, asked), run_r(asked))) if with_r else {}
    text, problems, missing_pwr = "", [], False
    test = ""
    for question, reply in replies:
        if reply["test"] != test:
            test = reply["test"]
            text += f"\n## {test}\n"
        kind, ours = answer_of(reply)
        at_sizes = reply["results"].get("power", ours)
        text += f"\n`kelpower {question}`: {kind} {ours:.6g}\n\n"
        for call in reply["details"]["programs"]:
            theirs = said.get(id(call))
            if theirs is not None:
                problem = disagreement(call, kind, ours, theirs, at_sizes)
                problems += [f"{question}: {problem}"] if problem else []
            missing_pwr = missing_pwr or (with_r and runs_in_r(call) and theirs is None)
            text += f"- {call['program']}: `{call['call']}`"
            text += f" gives {theirs:.6g}" if theirs is not None else ""
            text += "" if call["same"] else "; differs"
            text += f": {call['remark']}" if call.get("remark") else ""
            text += "\n"
        if not reply["details"]["programs"]:
            text += "- none of the four answers it\n"
    return text, problems, missing_pwr


def without_their_numbers(text):
    return re.sub(r"` gives [-+.e0-9]+", "`", text)


def main():
    if len(sys.argv) != 4 or sys.argv[1] not in ("write", "check"):
        sys.exit(__doc__)
    mode, program, page = sys.argv[1], sys.argv[2], Path(sys.argv[3])
    with_r = shutil.which("Rscript") is not None
    answers, problems, missing_pwr = sections(program, with_r)
    text = HEAD + answers + TAIL
    is_whole = with_r and not missing_pwr
    if mode == "write":
        if not is_whole:
            sys.exit("R with its package pwr is needed to write the page: tools/install_packages.sh peers")
        page.write_text(text)
    else:
        wanted, shown = text, page.read_text()
        if not is_whole:
            wanted, shown = without_their_numbers(wanted), without_their_numbers(shown)
            print(f"SKIPPED: {'pwr is' if with_r else 'R is'} not installed, so its answers are not compared")
        if wanted != shown:
            problems.append(f"{page} is out of date: tools/other_programs/page.py write")
    print("\n".join(problems) or f"{len(QUESTIONS)} questions agree")
    skipped = 77  # which the test reports as such
    sys.exit(1 if problems else 0 if is_whole else skipped)


if __name__ == "__main__":
    main()
