"""The answer to one design."""

import copy
import json
import pickle
import re
import shlex
import shutil
import subprocess
from pathlib import Path

import kelpower
import numpy as np
import pytest
from kelpower import InputError, NoSolution, Result, _core
from kelpower._ask import answer

TESTS = json.loads(_core.describe())["tests"]
EXAMPLES = [(test["name"], example["inputs"]) for test in TESTS for example in test["examples"]]
every_example = pytest.mark.parametrize(("test", "inputs"), EXAMPLES)
NAMESPACE = {"kelpower": kelpower}


def asked(test, inputs):
    return answer(test, {name.replace("-", "_"): value for name, value in inputs.items()})


@pytest.fixture
def design():
    return kelpower.two_means(effect_d=0.5, power=0.8)


def test_values_are_attributes(design):
    assert (design.n, design.total, design.target_power, design.alpha) == ((64, 64), 128, 0.8, 0.05)
    assert design.power == kelpower.two_means(effect_d=0.5, n=64).power
    assert design.one_sided is False
    assert {"n", "effect_d", "replace"} <= set(dir(design))
    with pytest.raises(AttributeError, match="this answer has no 'sigma'; it has n, total, power, effect_d"):
        design.sigma  # noqa: B018


def test_sizes_are_ints_and_all_else_is_float():
    answer = kelpower.two_means(means=[52, 47], sd=[10, 14], power=0.8)
    assert all(type(size) is int for size in (*answer.n, answer.total))
    assert all(type(value) is float for value in (*answer.means, *answer.sd, answer.power, answer.alpha, answer.ratio))


def test_what_it_is(design):
    assert (design.test, design.question) == ("two-means", "sample-size")
    assert design.title == "Independent-samples t test of two means"
    assert design.version == kelpower.__version__
    assert any("Cohen" in source for source in design.references)
    assert design.sentence.startswith("To detect an effect size d of 0.5 with a power of 0.8, the two-sided")
    assert design.note is None
    assert design.inputs["effect_d"] == 0.5
    assert design.results["total"] == 128


def test_no_value_of_a_test_hides_behind_an_attribute():
    for test in TESTS:
        results = [result["name"] for route in test["routes"] for result in route["results"]]
        names = {name.replace("-", "_") for name in [*results, *(each["name"] for each in test["parameters"])]}
        assert not names & set(dir(Result)), test["name"]


def test_the_method_of_two_proportions_is_what_was_asked():
    answer = kelpower.two_proportions(proportions=[0.5, 0.7], n=50, method="conditional")
    assert answer.method == "conditional"


def test_it_does_not_change(design):
    with pytest.raises(AttributeError, match=r"replace\(power=...\) asks for a variant"):
        design.power = 0.9
    with pytest.raises(AttributeError, match="does not change"):
        del design.power
    with pytest.raises(AttributeError, match="does not change"):
        design.other = 1
    design.inputs["effect_d"] = 9
    design.results.clear()
    design.to_dict()["results"]["total"] = 9
    assert (design.effect_d, design.total) == (0.5, 128)


def test_what_was_given_may_change_afterwards():
    means = [10, 12, 15]
    answer = kelpower.anova(means=means, sd=6, n=20)
    means[0] = 100
    assert answer.replace(n=20) == answer
    assert repr(answer) == "kelpower.anova(means=[10, 12, 15], sd=6, n=20)"


@every_example
def test_its_repr_is_the_call(test, inputs):
    answer = asked(test, inputs)
    again = eval(repr(answer), NAMESPACE)
    assert again == answer
    assert hash(again) == hash(answer)
    assert repr(again) == repr(answer)


@every_example
def test_pickling_and_copying_keep_it(test, inputs):
    answer = asked(test, inputs)
    for again in (pickle.loads(pickle.dumps(answer)), copy.copy(answer), copy.deepcopy(answer)):
        assert again == answer
        assert again.replace().sentence == answer.sentence


def test_equality(design):
    assert design == kelpower.two_means(effect_d=np.float64(0.5), power=0.8, alpha=0.05)
    assert design != kelpower.two_means(effect_d=0.5, power=0.9)
    assert design != kelpower.two_means(effect_d=0.5, n=64)
    assert design != "design"
    assert len({design, kelpower.two_means(effect_d=0.5, power=0.8)}) == 1


@every_example
def test_the_program_gives_the_same_text(test, inputs, root: Path):
    program = shutil.which("kelpower") or root / "build" / "release" / "cli" / "kelpower"
    if not Path(program).exists():
        pytest.skip("the program is not built")
    answer = asked(test, inputs)
    words = shlex.split(answer.command())
    assert words[:2] == ["kelpower", test]
    done = subprocess.run([program, *words[1:]], capture_output=True, text=True, check=True)
    assert done.stdout.rstrip("\n") == str(answer)


@every_example
def test_tables_have_the_rows_of_the_text(test, inputs):
    answer = asked(test, inputs)
    rows = re.findall(r"<tr><th[^>]*>(.*?)</th><td>(.*?)</td></tr>", answer._repr_html_())
    lines = [line for line in str(answer).splitlines() if line.startswith("  ")]
    assert len(rows) == len(lines)
    text = answer._repr_markdown_()
    for (label, value), line in zip(rows, lines, strict=True):
        assert label
        assert value
        assert f"| {label} | {value} |".replace("&#x27;", "'") in text
        assert re.sub(r"\s+", " ", line.strip()) == re.sub(r"\s+", " ", f"{label} {value}".replace("&#x27;", "'"))


def test_html_is_escaped():
    answer = kelpower.two_means(means=[52, 47], sd=[10, 14], n=40)
    assert "Welch&#x27;s test" in answer._repr_html_()
    assert "Welch's" not in answer._repr_html_()


def test_text_is_the_programs_table(design):
    assert str(design).splitlines()[:5] == [
        "Independent-samples t test of two means",
        "",
        "  effect size d         0.5",
        "  ratio of the sizes    1",
        "  target power          0.8",
    ]
    assert str(design).endswith(design.sentence)


def test_dictionaries_are_json(design):
    assert json.loads(json.dumps(design.to_dict())) == design.to_dict()
    assert design.to_dict()["results"]["n"] == [64, 64]


def test_frames(design):
    frame = design.to_frame()
    assert frame.shape[0] == 1
    assert frame.loc[0, ["n1", "n2", "total"]].tolist() == [64, 64, 128]
    assert frame["total"].dtype == "Int64"
    assert frame.loc[0, "target_power"] == 0.8
    assert frame.loc[0, "power"] == design.power
    with pytest.raises(ValueError, match="engine is 'excel', but must be one of"):
        design.to_frame("excel")


@pytest.mark.parametrize("engine", ["polars", "arrow"])
def test_frames_of_other_kinds(design, engine):
    pytest.importorskip({"arrow": "pyarrow"}.get(engine, engine))
    columns = (
        design.to_frame(engine).to_pydict() if engine == "arrow" else design.to_frame(engine).to_dict(as_series=False)
    )
    assert columns["n1"] == [64]
    assert columns["power"] == [design.power]


def test_variants(design):
    assert design.replace(power=0.9).total == 172
    assert design.replace(power=None, n=50) == kelpower.two_means(effect_d=0.5, n=50)
    assert design.replace(power=[0.8, 0.9]).total.tolist() == [128, 172]
    assert design.total == 128
    with pytest.raises(InputError) as caught:
        design.replace(alpha=2)
    assert caught.value.parameter == "alpha"
    with pytest.raises(InputError, match="is no input"):
        design.replace(sigma=2)
    with pytest.raises(NoSolution):
        design.replace(effect_d=0)


def test_a_variant_of_lists():
    answer = kelpower.anova(means=(10, 12, 15), sd=6, n=20)
    assert answer.replace(alpha=0.01).power == kelpower.anova(means=[10, 12, 15], sd=6, n=20, alpha=0.01).power


@every_example
def test_what_is_behind_an_answer(test, inputs):
    answer = asked(test, inputs)
    explained = answer.explain()
    assert explained.text.startswith(str(answer)[:40])
    assert explained.formula in re.sub(r"\s+", " ", explained.text)
    assert explained.source
    assert str(explained) == explained.text
    for figure in explained.figures.values():
        assert figure is None or isinstance(figure, (int, float))
    for program in explained.programs:
        assert {"program", "call", "same"} <= set(program)


def test_a_figure_behind_an_answer(design):
    explained = design.explain()
    assert explained.figures["noncentrality"] == pytest.approx(0.5 * np.sqrt(32), rel=1e-12)


def test_words_are_asked_for_once(design, monkeypatch):
    from kelpower import _request

    asked = []
    solve = _request.solve
    monkeypatch.setattr(_request, "solve", lambda *given, **members: asked.append(members) or solve(*given, **members))
    texts = (str(design), repr(design), design.command(), design._repr_html_(), design._repr_markdown_())
    assert asked == [{"text": True, "calls": True}]
    assert texts == (str(design), repr(design), design.command(), design._repr_html_(), design._repr_markdown_())
    assert len(asked) == 1
