"""Makes the page of measured speed from what the programs of the comparison and the benchmarks wrote."""

import json
import math
import re
import statistics
import textwrap
from dataclasses import dataclass, field

PEERS = {"pwr": "pwr", "R": "base R", "statsmodels": "statsmodels"}
QUESTIONS = {"power": "Power", "size": "Sample size"}

# By how much times of the same call differ from run to run.
NOISE = 0.1

# How many times as long as kelpower a program takes at least; stated on the page.
STATED_LEAST = {"pwr": 20, "R": 15, "statsmodels": 50}

# Powers are probabilities. The searches of R end within 0.00012 subjects of the size, on either side.
TOLERANCE = {"power": 1e-8, "size": 2.5e-4}


@dataclass
class Design:
    title: str
    size: str  # for the power
    power: str = "power 0.8"  # for the size
    is_rounded: bool = False  # whether our sizes are rounded up
    differs: dict = field(default_factory=dict)  # programs with another method, and which


WITHOUT_CORRECTION = "without our correction by half a subject"
ARCSINE = {"pwr": WITHOUT_CORRECTION, "statsmodels": WITHOUT_CORRECTION}

DESIGNS = {
    "one-sample-t": Design("One-sample t, two-sided, d = 0.4", "n = 40"),
    "one-sample-t-one-sided": Design("One-sample t, one-sided, d = 0.4", "n = 40"),
    "paired-t": Design("Paired t, two-sided, d = 0.5", "n = 30", power="power 0.9"),
    "two-sample-t": Design("Two-sample t, two-sided, d = 0.5", "n = 64 each", is_rounded=True),
    "two-sample-t-one-sided": Design("Two-sample t, one-sided, d = 0.5", "n = 64 each", is_rounded=True),
    "two-sample-t-small-effect": Design("Two-sample t, two-sided, d = 0.1", "n = 1600 each", is_rounded=True),
    "two-sample-t-unequal": Design("Two-sample t, two-sided, second group twice as large, d = 0.5", "n = 40 and 80",
                                   is_rounded=True),
    "anova": Design("Analysis of variance, 3 groups, f = 0.342", "n = 20 each", is_rounded=True),
    "anova-small-effect": Design("Analysis of variance, 5 groups, f = 0.1", "n = 240 each", is_rounded=True),
    "one-proportion": Design("One proportion, normal approximation, 0.7 against 0.5", "n = 50",
                             differs={"pwr": "by the arcsine test"}),
    "two-proportions-z": Design("Two proportions, z test, 0.3 and 0.5", "n = 100 each", is_rounded=True),
    "two-proportions-arcsine": Design("Two proportions, arcsine test, 0.3 and 0.5", "n = 100 each", is_rounded=True,
                                      differs=ARCSINE),
    "two-proportions-unequal": Design("Two proportions, arcsine test, second group twice as large, 0.3 and 0.5",
                                      "n = 80 and 160", is_rounded=True, differs=ARCSINE),
    "correlation": Design("Correlation, Fisher's z, r = 0.3", "n = 85",
                          differs={"pwr": "by another approximation"}),
    "regression": Design("Regression, 5 predictors, f² = 0.111", "n = 95"),
}

# The source files of the benchmarks.
FAMILIES = {
    "kelcommon": "Distributions",
    "anova": "One-way analysis of variance",
    "means": "Means",
    "proportions": "One proportion and paired proportions",
    "independent_proportions": "Two independent proportions",
    "correlation": "Correlations",
    "regression": "Multiple regression",
    "margins": "Margins of means",
    "proportion_margins": "Margins of proportions",
    "chi_square": "Chi-square tests and variances",
    "ranks": "Ranks",
    "planner": "The planner",
    "kelplan": "The C interface of the planner",
}

# Benchmarks that stand beside another: how the time of the other, or ours, relates to it.
BY_DEFINITION = "as fast as the definition, count by count"
FASTER_THAN = {
    "ExactPowerOfOneSample": ("ExactPowerOfOneSampleByDefinition", BY_DEFINITION),
    "ExactPowerOfPairs": ("ExactPowerOfPairsByDefinition", BY_DEFINITION),
    "PowerOfRandomPredictors": ("SeriesInLogarithms", "as fast as the plain series alone"),
}
MADE_OF = {
    "SurfaceOfSizesAndEffects": "NoncentralProbabilitiesOfThatSurface",
    "SurfaceOfEffectsAndSizes": "NoncentralProbabilitiesOfItsTails",
    "SurfaceOfPearson": "NormalProbabilitiesOfThatSurface",
}
PROPER_NAMES = {"Pearson", "Spearman"}


class Disagreement(Exception):
    """Programs that should give the same answer do not."""


class FallsShort(Exception):
    """A figure that the page states is not reached."""


@dataclass
class Call:
    answer: float
    seconds: float


@dataclass
class Benchmark:
    name: str
    arguments: str
    seconds: float
    counters: dict


def read_calls(text):
    """What the programs printed: calls by (program, design, question), and versions by name."""
    calls, versions = {}, {}
    for line in text.splitlines():
        fields = line.split("\t")
        if fields[0] == "version":
            versions[fields[1]] = fields[2]
        else:
            program, design, question, answer, seconds = fields
            calls[program, design, question] = Call(float(answer), float(seconds))
    return calls, versions


def read_benchmarks(text):
    """The medians of a report of Google Benchmark in JSON."""
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
    benchmarks = []
    for entry in json.loads(text)["benchmarks"]:
        if entry.get("aggregate_name") != "median":
            continue
        name, _, arguments = entry["run_name"].partition("/")
        counters = {key: entry[key] for key in ("answer", "ratio") if key in entry}
        benchmarks.append(Benchmark(name, arguments, entry["cpu_time"] * units[entry["time_unit"]], counters))
    return benchmarks


def our_calls(benchmarks):
    """Benchmarks called DESIGN/QUESTION as calls of kelpower."""
    return {("kelpower", b.name, b.arguments): Call(b.counters["answer"], b.seconds) for b in benchmarks}


def significant(value, digits):
    """A number rounded to that many digits, written without an exponent."""
    rounded = f"{value:.{digits - 1}e}"
    exponent = int(rounded.partition("e")[2])
    return f"{float(rounded):.{max(digits - 1 - exponent, 0)}f}"


def duration(seconds):
    for unit, name in ((1, "s"), (1e-3, "ms"), (1e-6, "µs")):
        if seconds >= 0.995 * unit:
            return f"{significant(seconds / unit, 2)} {name}"
    return f"{significant(seconds / 1e-9, 2)} ns"


def number(answer):
    """An answer to six digits, a whole one without decimals."""
    return f"{answer:.0f}" if answer == round(answer) else significant(answer, 6)


def short(value):
    """A small difference to one digit."""
    digit, exponent = f"{value:.0e}".split("e")
    return f"{digit}e{int(exponent)}"


def times(ratio):
    return significant(ratio, 2)


def words(name):
    """ExactSizeOfOneSample as "Exact size of one sample"; names in small letters stay."""
    if name.islower():
        return f"`{name}`"
    parts = re.findall(r"[A-Z][a-z]*", name)
    return " ".join([parts[0]] + [part if part in PROPER_NAMES else part.lower() for part in parts[1:]])


def paragraph(text):
    """The text in lines of at most 120 characters."""
    return textwrap.fill(" ".join(text.split()), 120, break_on_hyphens=False) + "\n"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows]) + "\n"


def difference(design, question, ours, theirs):
    if question == "size" and DESIGNS[design].is_rounded:
        theirs = math.ceil(theirs)
    return abs(ours - theirs)


def largest_difference(calls, design, question):
    """Between us and the others whose method is the same; none without any such."""
    ours = calls["kelpower", design, question].answer
    differences = []
    for program in PEERS:
        theirs = calls.get((program, design, question))
        if not theirs or program in DESIGNS[design].differs:
            continue
        differences.append(difference(design, question, ours, theirs.answer))
        if not differences[-1] <= TOLERANCE[question]:
            raise Disagreement(f"{design}, {question}: kelpower {ours!r}, {PEERS[program]} {theirs.answer!r}")
    return max(differences, default=None)


def answers_of_others(calls, design, question):
    """How near the answers are, and what those answer whose method differs."""
    largest = largest_difference(calls, design, question)
    parts = [] if largest is None else ["the same" if largest == 0 else f"the same within {short(largest)}"]
    by_answer = {}
    for program, method in DESIGNS[design].differs.items():
        theirs = calls.get((program, design, question))
        if theirs:
            by_answer.setdefault(f"{number(theirs.answer)} {method}", []).append(PEERS[program])
    return "; ".join(parts + [f"{', '.join(names)}: {answer}" for answer, names in by_answer.items()])


def comparison_table(calls, question):
    rows = []
    for key, design in DESIGNS.items():
        ours = calls["kelpower", key, question]
        row = [f"{design.title}; {design.size if question == 'power' else design.power}", number(ours.answer),
               duration(ours.seconds)]
        for program in PEERS:
            theirs = calls.get((program, key, question))
            row.append(f"{duration(theirs.seconds)} ({times(theirs.seconds / ours.seconds)})" if theirs else "–")
        rows.append(row + [answers_of_others(calls, key, question)])
    return table(["Design", QUESTIONS[question], "kelpower", *PEERS.values(), "Answers of the others"], rows)


def ratios(calls, program, question):
    found = []
    for design in DESIGNS:
        theirs = calls.get((program, design, question))
        if theirs:
            found.append(theirs.seconds / calls["kelpower", design, question].seconds)
    return found


def shortfalls(least, stated):
    """What to say where figures are less than stated, by more than the noise; both map names to figures."""
    return [f"{name}: {times(least[name])} times, {figure} are stated" for name, figure in stated.items()
            if name in least and least[name] < figure * (1 - NOISE)]


def check_stated(calls):
    least = {}
    for program, name in PEERS.items():
        found = [ratio for question in QUESTIONS for ratio in ratios(calls, program, question)]
        if found:
            least[name] = min(found)
    short_ones = shortfalls(least, {PEERS[program]: figure for program, figure in STATED_LEAST.items()})
    if short_ones:
        raise FallsShort("; ".join(short_ones))


def stated_paragraph():
    figures = ", ".join(f"{PEERS[program]} {figure}" for program, figure in STATED_LEAST.items())
    return paragraph(f"""
        How many times as long as kelpower the others take for one call. Stated are at least: {figures}. The run fails
        where the least of a program is smaller by more than {NOISE:.0%}, the noise of times.
        """)


def summary_table(calls):
    rows = []
    for program, name in PEERS.items():
        for question, title in QUESTIONS.items():
            found = ratios(calls, program, question)
            if found:
                row = [times(value) for value in (min(found), statistics.median(found), max(found))]
                rows.append([name, title.lower(), str(len(found)), *row])
    return table(["Beside", "question", "designs", "least", "median", "most"], rows)


def python_table(calls):
    rows = []
    for program, design, question in calls:
        if program != "ctypes":
            continue
        ours, theirs = calls[program, design, question], calls.get(("statsmodels", design, question))
        rows.append([DESIGNS[design].title, QUESTIONS[question].lower(), duration(ours.seconds),
                     duration(calls["kelpower", design, question].seconds),
                     f"{duration(theirs.seconds)} ({times(theirs.seconds / ours.seconds)})" if theirs else "–"])
    return table(["Design", "question", "kelpower by ctypes", "the same from C++", "statsmodels"], rows)


def programs_table(programs):
    """`programs` are pairs of a command and its seconds, ours first."""
    ours = programs[0][1]
    return table(["Command", "time", "times ours"],
                 [[f"`{command}`", duration(seconds), times(seconds / ours)] for command, seconds in programs])


def remark(benchmark, all_benchmarks):
    def seconds_of(name):
        return next((b.seconds for b in all_benchmarks if (b.name, b.arguments) == (name, benchmark.arguments)), None)

    if "ratio" in benchmark.counters:
        return f"{times(benchmark.counters['ratio'])} times as fast as the definition, table by table"
    if benchmark.name in FASTER_THAN:
        other, how = FASTER_THAN[benchmark.name]
        seconds = seconds_of(other)
        return f"{times(seconds / benchmark.seconds)} times {how}" if seconds else ""
    if benchmark.name in MADE_OF:
        seconds = seconds_of(MADE_OF[benchmark.name])
        return f"{times(benchmark.seconds / seconds)} times the distribution values that it is made of"
    return ""


def family_of(name, sources):
    """The source file that has a benchmark; `sources` maps file names without ending to their text."""
    found = [family for family, text in sources.items() if re.search(rf'^BENCHMARK\({name}\)|Name\("{name}/', text, re.M)]
    if len(found) != 1:
        raise ValueError(f"the benchmark {name} is in {len(found)} source files")
    return found[0]


def family_tables(benchmarks, sources):
    rows = {family: [] for family in FAMILIES}
    for b in benchmarks:
        family = family_of(b.name, sources)
        name = f"`{b.name}`" if family == "kelcommon" else words(b.name)
        arguments = b.arguments.replace("/", ", ").replace(":", " ")
        rows[family].append([name, arguments, duration(b.seconds), remark(b, benchmarks)])
    return "\n".join(f"### {title}\n\n" + table(["What", "Arguments", "Time", "Beside"], rows[family])
                     for family, title in FAMILIES.items())


def versions_sentence(context, versions):
    parts = [f"{name} {version}" for name, version in versions.items()]
    return f"{context['machine']}; kelpower {context['version']} compiled by {context['compiler']}; {', '.join(parts)}"


def page(context, calls, versions, programs, benchmarks, sources, kept=""):
    """`kept` are the sections that are measured by themselves."""
    missing = "" if "statsmodels" in versions else "\nstatsmodels could not be had on this machine and is left out.\n"
    return f"""# Speed

This page is generated by `make bench-peers`, which runs all that it compares one after the other on one machine
({versions_sentence(context, versions)}).
Times are processor time and differ on other machines; each is the median of some runs of many calls, made inside the
program itself by a user's ordinary call.
{missing}
## Beside other programs

{stated_paragraph()}
{summary_table(calls)}
### Power

In parentheses how many times as long as kelpower. All tests are at the level 0.05.

{comparison_table(calls, "power")}
### Sample size

Sizes are those of the first group. Where kelpower rounds up, so are those of the others before they are compared. A dash
stands where a program does not answer the question: pwr finds the second of two unequal groups for a given first one.
R's searches end within about 0.0001 subjects of the size, kelpower's within 0.000001 or better, before any rounding up.
For the normal approximation of one proportion and for the z test statsmodels has a formula that counts one tail.

{comparison_table(calls, "size")}
None of the three has the power of exact tests of a difference of proportions, of Welch's form of the t test, of contrasts
and pairwise comparisons, of paired proportions, of rank correlations, or of regression with random predictors. Intervals
and charts are not compared.

### Called from Python

The same functions through `ctypes`, which converts the arguments at every call.

{python_table(calls)}
### Whole programs

From the start of a command to its end: the groups of a two-sample t test with d = 0.5 for a power of 0.8.

{programs_table(programs)}
{kept}## All benchmarks

What `make bench` measures, by family; the designs are in `bench/`. Arguments of distributions are the sample sizes of the
designs they are taken from.

{family_tables(benchmarks, sources)}"""
