"""Effect sizes from what a study reports."""

import json
import math
import pickle
import shlex
import shutil
import subprocess
from pathlib import Path

import kelpower
import numpy as np
import pytest
from kelpower import EffectSizes, InputError, _core

EXAMPLES = json.loads(_core.describe())["effects"]["examples"]
GROUPS = {"means": [52, 47], "sd": [10, 12], "n": [20, 25]}


def arguments(inputs):
    return {name.replace("-", "_"): value for name, value in inputs.items()}


@pytest.mark.parametrize("example", EXAMPLES, ids=lambda example: example["arguments"])
def test_examples_give_the_sentences_of_the_description(example):
    assert kelpower.effect(**arguments(example["inputs"])).sentence == example["sentence"]


@pytest.mark.parametrize("example", EXAMPLES, ids=lambda example: example["arguments"])
def test_the_command_is_that_of_the_program(example):
    sizes = kelpower.effect(**arguments(example["inputs"]))
    words = shlex.split(sizes.command())
    assert words[0] == "kelpower"
    assert sorted(words[1:]) == sorted(shlex.split(example["arguments"]))


def test_effect_sizes_are_those_of_the_textbook():
    sizes = kelpower.effect(**GROUPS)
    pooled = math.sqrt((19 * 10**2 + 24 * 12**2) / 43)
    assert sizes.d == pytest.approx(5 / pooled, rel=1e-14)
    assert sizes.f2 == pytest.approx(sizes.f**2, rel=1e-14)
    assert sizes.eta_squared == pytest.approx(sizes.f2 / (1 + sizes.f2), rel=1e-14)
    assert sizes.intervals["d"] == (sizes.d_lower, sizes.d_upper)
    assert sizes.d_lower < sizes.d < sizes.d_upper


def test_inputs_are_attributes():
    sizes = kelpower.effect(**GROUPS, confidence=0.9)
    assert (sizes.means, sizes.n, sizes.confidence) == ((52, 47), (20, 25), 0.9)
    assert sizes.inputs["sd"] == (10, 12)
    assert {"d", "means", "uses"} <= set(dir(sizes))
    with pytest.raises(AttributeError, match="there is no 'omega'; there are d, d_lower"):
        sizes.omega  # noqa: B018


def test_uses_are_calls_of_this_package():
    (use,) = kelpower.effect(**GROUPS).uses
    assert (use.function, use.arguments) == ("two_means", {"effect_d": kelpower.effect(**GROUPS).d})
    assert eval(str(use).replace(")", ", power=0.8)"), {"kelpower": kelpower}) == use.ask(power=0.8)
    (use,) = kelpower.effect(proportions=[0.5, 0.75]).uses
    assert use.ask(power=0.8) == kelpower.two_proportions(proportions=[0.5, 0.75], power=0.8)
    assert kelpower.effect(t=2, n=20, one_sample=True).uses[0].function in ("mean", "paired_means")


def test_every_conversion_has_its_uses():
    for example in EXAMPLES:
        sizes = kelpower.effect(**arguments(example["inputs"]))
        written = sizes.to_dict()["results"].get("use", "")
        assert [f"{use.function}" for use in sizes.uses] == [
            words.split()[0].replace("-", "_") for words in written.split(" or ") if words
        ]


def test_text_and_calls():
    sizes = kelpower.effect(**GROUPS)
    assert repr(sizes) == "kelpower.effect(means=[52, 47], sd=[10, 12], n=[20, 25])"
    assert eval(repr(sizes), {"kelpower": kelpower}) == sizes
    text = str(sizes)
    assert text.startswith("Effect sizes\n")
    assert "Cohen's d                   0.448    (-0.15 to 1.041)" in text
    assert text.endswith(sizes.note)


def test_the_program_converts_the_same(root: Path):
    program = shutil.which("kelpower") or root / "build" / "release" / "cli" / "kelpower"
    if not Path(program).exists():
        pytest.skip("the program is not built")
    sizes = kelpower.effect(t=2.3, n=[20, 20], confidence=0.6)
    command = [program, *shlex.split(sizes.command())[1:]]
    assert subprocess.run(command, capture_output=True, text=True, check=True).stdout.rstrip() == str(sizes)


def test_html_is_escaped():
    html = kelpower.effect(**GROUPS)._repr_html_()
    assert '<th style="text-align:left">Cohen&#x27;s d</th><td>0.448</td><td>-0.15 to 1.041</td>' in html


def test_frames_and_dictionaries():
    sizes = kelpower.effect(**GROUPS)
    frame = sizes.to_frame().set_index("effect")
    assert frame.loc["d", "value"] == sizes.d
    assert (frame.loc["d", "lower"], frame.loc["d", "upper"]) == sizes.intervals["d"]
    assert frame.loc["g", "label"] == "Hedges' g"
    assert kelpower.effect(effect_d=0.5).to_frame()["lower"].isna().all()
    assert json.loads(json.dumps(sizes.to_dict())) == sizes.to_dict()


def test_they_explain_themselves():
    formula = kelpower.effect(t=2.3, n=[20, 20]).explain()["d"]
    assert formula.formula == "d = t sqrt(1 / n1 + 1 / n2)"
    assert "Borenstein" in formula.source


def test_they_are_values():
    sizes = kelpower.effect(**GROUPS)
    same = kelpower.effect(means=(52.0, 47.0), sd=np.array([10, 12]), n=[20, 25], confidence=0.95)
    assert sizes == same
    assert hash(sizes) == hash(same)
    assert sizes != sizes.replace(confidence=0.9)
    assert sizes.replace(n=None) == kelpower.effect(means=[52, 47], sd=[10, 12])
    assert pickle.loads(pickle.dumps(sizes)) == sizes
    assert sizes != "text"
    with pytest.raises(AttributeError, match="do not change"):
        sizes.d = 1
    with pytest.raises(AttributeError, match="do not change"):
        del sizes.d


def test_errors():
    with pytest.raises(InputError, match="Also give means and sd, or mean_difference and sd"):
        kelpower.effect()
    with pytest.raises(InputError) as caught:
        kelpower.effect(hedges_g=0.5, n=[20, 0])
    assert caught.value.parameter == "n"
    assert caught.value.allowed == "a whole number from 1 to 1000000000, or a list of such"
    with pytest.raises(TypeError, match="positional"):
        kelpower.effect(0.5)
    with pytest.raises(TypeError, match="unexpected keyword"):
        kelpower.effect(omega=0.5)
    with pytest.raises(InputError):
        kelpower.effect(effect_d=[0.2, 0.5])


def test_it_returns_effect_sizes():
    assert isinstance(kelpower.effect(r=0.3, n=50), EffectSizes)
    assert kelpower.effect(r=0.3, n=50).note == "Cohen's d takes r as the correlation with two equal groups."
