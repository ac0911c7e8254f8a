"""The manual pages of the tests. A parameter is described once, as a macro that the pages share."""

import re
import string

from names import call, r_value, underscored, wrapped

WIDTH_OF_PAGES = 88


def escaped(text):
    text = text.replace("\\", "\\\\").replace("%", "\\%")
    text = re.sub(r"\{([\w-]+)\}", lambda name: f"@code@{underscored(name.group(1))}@end@", text)
    text = text.replace("{", "\\{").replace("}", "\\}")
    return text.replace("@code@", "\\code{").replace("@end@", "}")


def sentence(text):
    text = text.strip()
    return escaped(text[0].upper() + text[1:] + ("" if text.endswith(".") else "."))


def number_words(value):
    return r_value(value)


def range_words(limits):
    """The range of an input as words: above 0, 0 to 1."""
    low = limits.get("minimum")
    above = limits.get("exclusive-minimum")
    high = limits.get("maximum")
    below = limits.get("exclusive-maximum")
    words = []
    if low is not None and high is not None:
        words.append(f"{number_words(low)} to {number_words(high)}")
    else:
        words += [f"{number_words(low)} or above"] if low is not None else []
        words += [f"above {number_words(above)}"] if above is not None else []
        words += [f"at most {number_words(high)}"] if high is not None else []
        words += [f"below {number_words(below)}"] if below is not None else []
    if limits.get("whole"):
        words.append("whole")
    return ", ".join(words)


SHAPES = {
    "number": "A number",
    "flag": "\\code{TRUE} or \\code{FALSE}",
    "choice": "One of",
    "list": "A vector of numbers, or a list of such for several designs",
    "per-group": "A vector with a number for each group, or a list of such for several designs",
}


def shape(parameter):
    kind = parameter["kind"]
    if kind == "choice":
        words = ", ".join(f'\\code{{"{word}"}}' for word in parameter["choices"])
        text = f"One of {words}"
    else:
        text = SHAPES[kind]
        if parameter.get("spreads"):
            text += "; one number stands for all groups"
        ranges = range_words(parameter["limits"])
        text += f"; {ranges}" if ranges else ""
    default = parameter.get("default")
    if default is not None:
        text += f"; default \\code{{{r_value(default)}}}"
    return text + "."


def parameter_words(parameter):
    words = f"{sentence(parameter['meaning'])} {shape(parameter)}"
    aliases = [underscored(alias) for alias in parameter["aliases"]]
    if aliases:
        words += f" Also called {', '.join(f'@{alias}@' for alias in aliases)}."
        words = re.sub(r"@([\w]+)@", r"\\code{\1}", words)
    return words


class Macros:
    """A macro for each thing that is said of a parameter. Names of macros are letters alone."""

    def __init__(self):
        self.by_words = {}

    def of(self, parameter):
        key = (parameter["name"], parameter_words(parameter))
        if key not in self.by_words:
            count = sum(name == parameter["name"] for name, _ in self.by_words)
            letters = "".join(part.capitalize() for part in re.split(r"-", parameter["name"]))
            letters = letters.replace("1", "One").replace("2", "Two")
            self.by_words[key] = f"kp{letters}{string.ascii_uppercase[count] if count else ''}"
        return f"\\{self.by_words[key]}{{}}"

    def text(self):
        lines = [f"\\newcommand{{\\{macro}}}{{{words}}}" for (_, words), macro in self.by_words.items()]
        return "% Written by tools/r/generate.py: what each parameter of the tests means.\n" + "\n".join(lines) + "\n"


def usage(name, parameters):
    names = ["..."] + [f"{underscored(each['name'])} = NULL" for each in parameters]
    return wrapped(f"{name}(", names, ")", len(name) + 1, WIDTH_OF_PAGES)


QUESTIONS = {
    "power": "the power",
    "sample-size": "the sample size for a power",
    "half-width": "the half-width of the confidence interval",
    "sample-size-for-half-width": "the sample size for a half-width",
}
TARGETS = {"sample-size": "power", "half-width": "interval", "sample-size-for-half-width": "half-width"}


def questions(test):
    """What is asked by which inputs."""
    items = []
    for question, words in QUESTIONS.items():
        sets = [route["needs"] + [TARGETS[question]] if question in TARGETS else route["needs"]
                for route in test["routes"] if route["question"] == question]
        if not sets:
            continue
        texts = [" and ".join(f"\\code{{{underscored(each)}}}" for each in needs) for needs in sets]
        items.append(f"  \\item {words}, from {'; or '.join(texts)}")
    text = "What is asked follows from what is given:\n\\itemize{\n" + "\n".join(items) + "\n}\n"
    if test["unknowns"]:
        names = ", ".join(f'\\code{{"{name}"}}' for name in dict.fromkeys(
            underscored(each["name"]) for each in test["unknowns"]))
        text += (f"With the sizes and the target given, \\code{{solve}} names the number to find: {names}.\n")
    return text


def with_links(text, names):
    """Names of other tests, which follow the word see, as links to their pages."""
    about, see, others = text.partition("see ")
    for name in sorted(names, key=len, reverse=True):
        others = re.sub(rf"(?<![\w-]){name}(?![\w-])", f"@link@kp_{underscored(name)}@endlink@", others)
    linked = escaped(about + see) + escaped(others)
    return linked.replace("@link@", "\\code{\\link{").replace("@endlink@", "}}")


def page(test, names, macros):
    name = f"kp_{underscored(test['name'])}"
    items = "\n".join(f"  \\item{{{underscored(each['name'])}}}{{{macros.of(each)}}}" for each in test["parameters"])
    examples = "\n".join(call(name, each["inputs"], WIDTH_OF_PAGES) for each in test["examples"])
    sources = "\n\n".join(f"  {escaped(source)}" for source in test["sources"])
    said = dict.fromkeys(sentence(each["sentence"]) for each in test["conditions"])
    conditions = "".join(f"  \\item {each}\n" for each in said)
    conditions = f"\\section{{Conditions}}{{\n\\itemize{{\n{conditions}}}\n}}\n" if conditions else ""
    return f"""% Written by tools/r/generate.py.
\\name{{{name}}}
\\alias{{{name}}}
\\title{{{escaped(test['title'])}}}
\\description{{
  {escaped(test['about'])}
  {with_links(test['when-not'], names)}
}}
\\usage{{
{usage(name, test['parameters'])}
}}
\\arguments{{
  \\item{{...}}{{Other names of the arguments below. All arguments are given by their full names.}}
{items}
}}
\\details{{
{questions(test)}
A vector in place of a number, flag or word gives a design for each element; vectors are of one length, or of length 1.
}}
{conditions}\\value{{
  An object of class \\code{{\\link[=kelpower-class]{{kelpower}}}}.
}}
\\references{{
{sources}
}}
\\seealso{{
  \\code{{\\link{{kp_grid}}}} for all combinations, \\code{{\\link{{plot.kelpower}}}} for charts,
  \\code{{\\link{{kp_effect}}}} for effect sizes.
}}
\\examples{{
{examples}
}}
"""


def effect_page(effects, macros):
    items = "\n".join(f"  \\item{{{underscored(each['name'])}}}{{{macros.of(each)}}}" for each in effects["parameters"])
    ways = []
    for conversion in effects["conversions"]:
        needs = " and ".join(f"\\code{{{underscored(each)}}}" for each in conversion["needs"])
        ways.append(f"  \\item {needs}: {escaped(conversion['title'][0].lower() + conversion['title'][1:])}")
    examples = "\n".join(call("kp_effect", each["inputs"], WIDTH_OF_PAGES) for each in effects["examples"])
    about = " ".join(effects["about"].split())
    return f"""% Written by tools/r/generate.py.
\\name{{kp_effect}}
\\alias{{kp_effect}}
\\alias{{print.kelpower_effect}}
\\alias{{as.data.frame.kelpower_effect}}
\\title{{{escaped(effects['title'])}}}
\\description{{
  {escaped(about)}
}}
\\usage{{
{usage('kp_effect', effects['parameters'])}

\\method{{print}}{{kelpower_effect}}(x, digits = 4, ...)

\\method{{as.data.frame}}{{kelpower_effect}}(x, row.names = NULL, optional = FALSE, ...)
}}
\\arguments{{
  \\item{{...}}{{Other names of the arguments below; of the methods, not used.}}
{items}
  \\item{{x}}{{an answer of \\code{{kp_effect}}}}
  \\item{{digits}}{{significant digits}}
  \\item{{row.names, optional}}{{as in \\code{{\\link{{as.data.frame}}}}}}
}}
\\details{{
What is converted follows from what is given:
\\itemize{{
{chr(10).join(dict.fromkeys(ways))}
}}
}}
\\value{{
  A list of class \\code{{kelpower_effect}} with the \\code{{inputs}}, the \\code{{results}}, a named list of effect sizes
  and the limits of their confidence intervals, a \\code{{sentence}} and, for some, a \\code{{note}}. As a data frame it
  has a row for each effect size.
}}
\\seealso{{
  \\code{{\\link{{kelpower}}}} for the tests that take effect sizes.
}}
\\examples{{
{examples}
}}
"""


def pages(description):
    macros = Macros()
    names = [test["name"] for test in description["tests"]]
    written = {f"man/kp_{underscored(test['name'])}.Rd": page(test, names, macros) for test in description["tests"]}
    written["man/kp_effect.Rd"] = effect_page(description["effects"], macros)
    written["man/macros/parameters.Rd"] = macros.text()
    return written
