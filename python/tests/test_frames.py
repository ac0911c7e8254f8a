"""Designs in the rows of frames: what goes in, what comes out, and what happens to rows that cannot be answered."""

import decimal
import functools
import os
import pickle
import warnings

import kelpower
import numpy as np
import pytest
from kelpower import _many

pd = pytest.importorskip("pandas")
pl = pytest.importorskip("polars")
pa = pytest.importorskip("pyarrow")


def to_pandas(columns):
    return pd.DataFrame(columns)


def to_batch(columns):
    return pa.record_batch(columns)


KINDS = pytest.mark.parametrize(
    "frame", [to_pandas, pl.DataFrame, pa.table, to_batch], ids=["pandas", "polars", "table", "batch"]
)


def column(frame, name):
    """A column of any frame as a list with None where it is missing."""
    if isinstance(frame, pd.DataFrame):
        return [None if pd.isna(each) else each for each in frame[name]]
    values = frame.get_column(name) if isinstance(frame, pl.DataFrame) else frame.column(name)
    return values.to_list() if isinstance(frame, pl.DataFrame) else values.to_pylist()


def names(frame):
    return list(frame.schema.names) if isinstance(frame, (pa.Table, pa.RecordBatch)) else list(frame.columns)


def solve(test, **arguments):
    """The results of one design by the names of columns, or none."""
    try:
        results = getattr(kelpower, test)(**arguments).results
    except kelpower.KelpowerError:
        return None
    columns = {}
    for name, value in results.items():
        columns |= (
            {f"{name}{i}": each for i, each in enumerate(value, 1)} if isinstance(value, tuple) else {name: value}
        )
    return columns


@KINDS
def test_the_same_kind_comes_out(frame):
    designs = frame({"study": ["a", "b"], "effect_d": [0.5, 0.8]})
    answered = kelpower.solve_frame(designs, test="two-means", power=0.9)
    assert type(answered) is type(designs)
    assert names(answered) == ["study", "effect_d", "n1", "n2", "total", "power", "status"]
    assert column(answered, "study") == ["a", "b"]
    assert column(answered, "n1") == [86, 34]
    assert column(answered, "status") == [0, 0]


@KINDS
def test_rows_equal_single_designs_bit_for_bit(frame):
    random = np.random.default_rng(7)
    effects = random.normal(0, 1, 60).tolist()
    powers = random.uniform(-0.05, 1.1, 60).tolist()
    sides = (random.uniform(size=60) < 0.5).tolist()
    designs = frame({"effect_d": effects, "target_power": powers, "one_sided": sides})
    answered = kelpower.solve_frame(designs, test=kelpower.two_means)
    assert 0 < column(answered, "status").count(0) < 60
    for row, arguments in enumerate(zip(effects, powers, sides, strict=True)):
        expected = solve("two_means", **dict(zip(("effect_d", "power", "one_sided"), arguments, strict=True)))
        got = {name: column(answered, name)[row] for name in ("n1", "n2", "total", "power")}
        assert got == (expected or dict.fromkeys(got)), arguments
        assert (column(answered, "status")[row] == 0) == (expected is not None)


@KINDS
def test_a_row_that_is_not_answered_has_its_status_and_no_results(frame):
    designs = frame({"effect_d": [0.5, None, 0.0, -2e6, 1e-12], "target_power": [0.8, 0.8, 0.8, 0.8, 0.8]})
    answered = kelpower.solve_frame(designs, test="two-means")
    assert column(answered, "status") == [0, 2, 3, 2, 3]  # the last size is larger than 64 bits hold
    for name in ("n1", "n2", "total", "power"):
        assert column(answered, name)[1:] == [None] * 4


@KINDS
@pytest.mark.parametrize("rows", [0, 1, 3])
def test_types_follow_from_the_columns_alone(frame, rows):
    designs = frame({"effect_d": np.full(rows, np.nan), "method": np.full(rows, "x", dtype=str)})
    answered = kelpower.solve_frame(designs, test="two-means", power=0.8)
    good = kelpower.solve_frame(frame({"effect_d": np.ones(2), "method": ["x", "y"]}), test="two-means", power=0.8)
    if frame is to_pandas:
        assert answered.drop(columns="method").dtypes.equals(good.drop(columns="method").dtypes)
        assert [str(answered[name].dtype) for name in ("n1", "total", "power", "status")] == [
            "Int64", "Int64", "float64", "int32"]  # fmt: skip
    else:
        assert answered.schema == good.schema
    assert column(answered, "status") == [2] * rows


@KINDS
def test_entries_of_lists_are_numbered_columns(frame):
    designs = frame({"means1": [10.0, 10.0], "means2": [12.0, 10.0], "mean3": [15, 11], "sd": [6, 6], "n": [20, 30]})
    answered = kelpower.solve_frame(designs, test="anova")
    expected = [
        kelpower.anova(means=[10, 12, 15], sd=6, n=20).power,
        kelpower.anova(means=[10, 10, 11], sd=6, n=30).power,
    ]
    assert column(answered, "power") == expected


@KINDS
def test_sizes_of_groups(frame):
    answered = kelpower.solve_frame(frame({"n1": [20, 30], "n2": [40, 30]}), test="two-means", effect_d=0.5)
    assert column(answered, "total") == [60, 60]
    assert column(answered, "power")[0] == kelpower.two_means(effect_d=0.5, n=[20, 40]).power


@KINDS
def test_words_and_flags_of_rows(frame):
    words = ["conditional", "z", None, "wrong", "likelihood_ratio", "likelihood-ratio"]
    designs = frame({"method": words, "correction": [False, True, False, False, False, None]})
    fixed = {"proportions": [0.2, 0.4], "power": 0.8}
    answered = kelpower.solve_frame(designs, test="two-proportions", **fixed)
    assert column(answered, "status") == [0, 0, 2, 2, 0, 2]
    for row, arguments in (
        (0, {"method": "conditional"}),
        (1, {"correction": True}),
        (4, {"method": "likelihood-ratio"}),
    ):
        expected = kelpower.two_proportions(**fixed, **arguments)
        assert column(answered, "total")[row] == expected.total
        assert column(answered, "power")[row] == expected.power
    # Only the exact test finds it.
    assert column(answered, "lasting_n1")[0] == kelpower.two_proportions(method="conditional", **fixed).lasting_n[0]
    assert column(answered, "lasting_n1")[1] is None


def test_flags_that_do_not_go_together_refuse_their_rows_alone():
    designs = pd.DataFrame({"exact": [True, True, False], "unpooled": [False, True, True]})
    fixed = {"proportions": [0.2, 0.4], "n": 50}
    answered = kelpower.solve_frame(designs, test="two-proportions", **fixed)
    for row, (exact, unpooled) in enumerate(zip(designs["exact"], designs["unpooled"], strict=True)):
        expected = solve("two_proportions", exact=exact, unpooled=unpooled, **fixed)
        assert (answered["status"][row] == 0) == (expected is not None)
        assert expected is None or answered["power"][row] == expected["power"]
    assert answered["status"].tolist().count(0) in (2, 3)


@KINDS
def test_a_target_column_named_like_the_result_stays(frame):
    answered = kelpower.solve_frame(frame({"effect_d": [0.5], "power": [0.8]}), test="two-means")
    assert names(answered) == ["effect_d", "power", "n1", "n2", "total", "achieved_power", "status"]
    assert column(answered, "power") == [0.8]
    assert column(answered, "achieved_power") == [kelpower.two_means(effect_d=0.5, power=0.8).power]
    called = kelpower.solve_frame(frame({"effect_d": [0.5], "target_power": [0.8]}), test="two-means")
    assert column(called, "power") == column(answered, "achieved_power")


def test_targets_of_widths():
    designs = pd.DataFrame({"sd": [10.0], "half_width": [2.0], "target_assurance": [0.9]})
    answered = kelpower.solve_frame(designs, test="two-means")
    expected = kelpower.two_means(sd=10, half_width=2, assurance=0.9)
    assert answered["achieved_half_width"][0] == expected.half_width
    assert answered["assurance"][0] == expected.assurance
    assert answered["half_width"][0] == 2


def test_columns_of_answers_can_be_asked_again():
    answers = kelpower.two_means(effect_d=[0.2, 0.5], power=0.9).to_frame()
    given = answers[["effect_d", "target_power"]]
    pd.testing.assert_frame_equal(kelpower.solve_frame(given, test="two-means"), answers)


def test_columns_with_other_names():
    designs = pd.DataFrame({"d": [0.5], "sd": ["unrelated"], "goal": [0.9]})
    renamed = {"d": "effect_d", "goal": "power", "sd": None}
    answered = kelpower.solve_frame(designs, test="two-means", rename=renamed)
    assert list(answered) == ["d", "sd", "goal", "n1", "n2", "total", "power", "status"]
    assert answered["total"][0] == 172


@pytest.mark.parametrize(
    ("columns", "arguments", "words"),
    [
        ({"effect_d": [0.5], "status": ["x"]}, {"power": 0.9}, "'status' already"),
        ({"effect_d": [0.5], "total": [1]}, {"power": 0.9}, "'total' already"),
        ({"effect_d": [0.5], "power": [0.5], "achieved_power": [0.5]}, {}, "'achieved_power' already"),
        ({"effect_d": [0.5]}, {"power": 0.9, "effect_d": 0.5}, "given twice"),
        ({"effect_d": [0.5], "n": [5], "n1": [5]}, {}, "given twice"),
        ({"effect_d": [0.5], "power": [0.5], "target_power": [0.5]}, {}, "given twice"),
        ({"effect_d": [0.5], "d": [0.5]}, {"power": 0.9, "rename": {"d": "effect_d"}}, "given twice"),
        ({"effect_d": [0.5]}, {"power": 0.9, "rename": {"x": "effect_d"}}, "no column 'x'"),
        ({"effect_d": [0.5]}, {"power": 0.9, "rename": {"effect_d": "x"}}, "'x' is no argument of two_means"),
        ({"effect_d": [0.5]}, {"power": [0.8, 0.9]}, "one for all rows"),
        ({"effect_d": [0.5]}, {"power": 9}, "power is 9, but must be"),
        ({"effect_d": [0.5]}, {"powers": 0.9}, "powers is no input"),
        ({"effect_d": [0.5]}, {"n": 20, "one_sided": 1}, "one_sided is 1"),
        ({"x": [0.5]}, {"power": 0.9}, "give"),
        ({"effect_d": [0.5], "n2": [10]}, {}, "cannot be a column"),
        ({"effect_d": [0.5], "interval": [True]}, {"power": 0.9}, "cannot decide"),
        ({"effect_d": ["0.5"]}, {"power": 0.9}, "'effect_d' is of the type"),
        ({"effect_d": [True]}, {"power": 0.9}, "'effect_d' is of the type"),
        ({"effect_d": [0.5], "one_sided": [1]}, {"power": 0.9}, "'one_sided' is of the type"),
        ({"effect_d": [0.5], "one_sided": ["yes"]}, {"power": 0.9}, "'one_sided' is of the type"),
    ],
)
@KINDS
def test_what_is_no_question_is_refused_without_rows_as_with_them(frame, columns, arguments, words):
    def typed(values):
        array = np.asarray(values)
        return pd.array(array, dtype="string") if frame is to_pandas and array.dtype.kind == "U" else array

    for rows in (1, 0):
        designs = frame({name: typed(values)[:rows] for name, values in columns.items()})
        with pytest.raises(kelpower.InputError, match=words):
            kelpower.solve_frame(designs, test="two-means", **arguments)


def test_what_is_no_frame():
    for wrong in ([1, 2], {"effect_d": [0.5]}, None, pl.LazyFrame({"effect_d": [0.5]}), np.zeros((2, 2))):
        with pytest.raises(TypeError, match="a frame of pandas, polars or Arrow is expected"):
            kelpower.solve_frame(wrong, test="two-means", power=0.9)
    with pytest.raises(ValueError, match="is not a test"):
        kelpower.solve_frame(pd.DataFrame(), test="no-test")


def test_duplicated_names():
    designs = pd.DataFrame([[0.5, "a", "b"]], columns=["effect_d", "label", "label"])
    answered = kelpower.solve_frame(designs, test="two-means", power=0.9)
    assert list(answered) == ["effect_d", "label", "label", "n1", "n2", "total", "power", "status"]
    assert answered.iloc[0, 2] == "b"
    twice = pd.DataFrame([[0.5, 0.6]], columns=["effect_d", "effect_d"])
    with pytest.raises(kelpower.InputError, match="given twice"):
        kelpower.solve_frame(twice, test="two-means", power=0.9)
    table = pa.Table.from_arrays([pa.array([0.5]), pa.array(["a"]), pa.array(["b"])], names=["effect_d", "x", "x"])
    assert kelpower.solve_frame(table, test="two-means", power=0.9).column(2).to_pylist() == ["b"]


def test_the_index_and_the_frame_given_stay():
    designs = pd.DataFrame({"effect_d": [0.5, 0.8], 7: [1, 2]}, index=pd.Index(["x", "x"], name="site"))
    designs.attrs["source"] = "protocol"
    before = designs.copy()
    answered = kelpower.solve_frame(designs, test="two-means", power=0.9)
    pd.testing.assert_frame_equal(designs, before)
    assert answered.index.equals(designs.index)
    assert answered.index.name == "site"
    assert answered.attrs == {"source": "protocol"}
    many = designs.set_index([[1, 2], ["a", "b"]])
    assert kelpower.solve_frame(many, test="two-means", power=0.9).index.equals(many.index)


EFFECTS = [0.5, 0.25, 0.75]
EXPECTED = [kelpower.two_means(effect_d=each, power=0.9).total for each in EFFECTS]


@pytest.mark.parametrize(
    "values",
    [
        np.array(EFFECTS, dtype=">f8"),
        np.array(EFFECTS, dtype=np.float32),
        np.array(EFFECTS, dtype=np.float16),
        np.array(EFFECTS, dtype=np.longdouble),
        np.array(EFFECTS).repeat(3)[::3],
        np.array(EFFECTS[::-1])[::-1],
        pd.array(EFFECTS, dtype="Float64"),
        pd.array(EFFECTS, dtype="Float32"),
        pd.array(EFFECTS, dtype="double[pyarrow]"),
        pd.array([decimal.Decimal(str(each)) for each in EFFECTS], dtype=pd.ArrowDtype(pa.decimal128(5, 2))),
        pd.arrays.SparseArray(EFFECTS),
        pd.Categorical(EFFECTS),
        np.array(EFFECTS, dtype=object),
        np.array([decimal.Decimal(str(each)) for each in EFFECTS], dtype=object),
    ],
    ids=lambda values: str(values.dtype),
)
def test_columns_of_pandas(values):
    if isinstance(values, np.ndarray):
        values.flags.writeable = False
    answered = kelpower.solve_frame(pd.DataFrame({"effect_d": values}), test="two-means", power=0.9)
    assert answered["total"].tolist() == EXPECTED


@pytest.mark.parametrize(
    ("values", "statuses"),
    [
        (pd.array([0.5, None], dtype="Float64"), [0, 2]),
        (pd.array([1, None], dtype="Int64"), [0, 2]),
        (pd.array([0.5, None], dtype="double[pyarrow]"), [0, 2]),
        (pd.Categorical([0.5, None]), [0, 2]),
        (np.array([0.5, None], dtype=object), [0, 2]),
        (np.array([0.5, pd.NA], dtype=object), [0, 2]),
        (np.array([0.5, "0.5", True, [0.5], 1j, 10**400, {}], dtype=object), [0, 2, 2, 2, 2, 2, 2]),
        (pd.Series([0.5, np.complex64(0.5), np.complex128(0.5), np.array([0.5]), np.array(0.5)]), [0, 2, 2, 2, 2]),
        (np.array([0.5, np.nan, np.inf, -np.inf]), [0, 2, 2, 2]),
        (np.array([1, 2**63 - 1]), [0, 2]),
        (np.array([1, 2**64 - 1], dtype=np.uint64), [0, 2]),
    ],
)
def test_missing_and_strange_numbers_of_pandas(values, statuses):
    answered = kelpower.solve_frame(pd.DataFrame({"effect_d": values}), test="two-means", power=0.9)
    assert answered["status"].tolist() == statuses


@pytest.mark.parametrize(
    ("flags", "totals"),
    [
        (np.array([True, False]), [26, 34]),
        (np.array([True, 1, "True", None, np.False_], dtype=object), [26, None, None, None, 34]),
        (pd.array([True, None], dtype="boolean"), [26, None]),
        (pd.array([False, None], dtype="bool[pyarrow]"), [34, None]),
        (pd.Categorical([True, None, False]), [26, None, 34]),
    ],
)
def test_flags_of_pandas(flags, totals):
    answered = kelpower.solve_frame(pd.DataFrame({"one_sided": flags}), test="mean", effect_d=0.5, power=0.8)
    assert column(answered, "n") == [total if total is None else total + (1 if total == 26 else 0) for total in totals]


@pytest.mark.parametrize("kind", [object, "string", "category", "string[pyarrow]", "str"])
def test_words_of_pandas(kind):
    designs = pd.DataFrame({"variance": pd.Series(["fieller", None, "caruso-cliff", "x"], dtype=kind)})
    answered = kelpower.solve_frame(designs, test="spearman", r=0.3, power=0.8)
    expected = [kelpower.spearman(r=0.3, power=0.8, variance=each).n for each in ("fieller", "caruso-cliff")]
    assert column(answered, "n") == [expected[0], None, expected[1], None]


@pytest.mark.parametrize(
    "series",
    [
        pl.Series(EFFECTS, dtype=pl.Float32),
        pl.Series(["0.50", "0.25", "0.75"]).cast(pl.Decimal(5, 2)),
        pl.Series([decimal.Decimal(str(each)) for each in EFFECTS], dtype=pl.Object),
        pl.Series(EFFECTS * 2)[:3],
        pl.concat([pl.Series(EFFECTS[:1]), pl.Series(EFFECTS[1:])], rechunk=False),
    ],
    ids=lambda series: str(series.dtype),
)
def test_columns_of_polars(series):
    answered = kelpower.solve_frame(pl.DataFrame({"effect_d": series}), test="two-means", power=0.9)
    assert answered["total"].to_list() == EXPECTED


@pytest.mark.parametrize("kind", [pl.String, pl.Categorical, pl.Enum(["fieller", "x", "caruso-cliff"])])
def test_words_of_polars(kind):
    designs = pl.DataFrame({"variance": pl.Series(["fieller", None, "caruso-cliff", "x"], dtype=kind)})
    answered = kelpower.solve_frame(designs, test="spearman", r=0.3, power=0.8)
    expected = [kelpower.spearman(r=0.3, power=0.8, variance=each).n for each in ("fieller", "caruso-cliff")]
    assert answered["n"].to_list() == [expected[0], None, expected[1], None]
    assert answered.schema == kelpower.solve_frame(designs.clear(), test="spearman", r=0.3, power=0.8).schema


def test_columns_without_any_value():
    for nothing in (
        pl.DataFrame({"effect_d": [None]}),
        pa.table({"effect_d": [None]}),
        pd.DataFrame({"effect_d": [None]}),
    ):
        assert column(kelpower.solve_frame(nothing, test="two-means", power=0.9), "status") == [2]
    for nothing in (pl.DataFrame({"one_sided": [None]}), pa.table({"one_sided": [None]})):
        assert column(kelpower.solve_frame(nothing, test="two-means", power=0.9, effect_d=0.5), "status") == [2]


@pytest.mark.parametrize(
    "array",
    [
        pa.array(EFFECTS, pa.float32()),
        pa.array(EFFECTS).dictionary_encode(),
        pa.array([decimal.Decimal(str(each)) for each in EFFECTS], pa.decimal128(5, 2)),
        pa.array([0.0, *EFFECTS])[1:],
        pa.chunked_array([EFFECTS[:1], [], EFFECTS[1:]]),
    ],
    ids=lambda array: str(array.type),
)
def test_columns_of_arrow(array):
    answered = kelpower.solve_frame(pa.table({"effect_d": array}), test="two-means", power=0.9)
    assert answered.column("total").to_pylist() == EXPECTED


@pytest.mark.parametrize(
    "kind", [pa.string(), pa.large_string(), pa.string_view(), pa.dictionary(pa.int8(), pa.string())]
)
def test_words_of_arrow(kind):
    table = pa.table({"variance": pa.array(["fieller", None, "caruso-cliff", "x"], kind)})
    answered = kelpower.solve_frame(table, test="spearman", r=0.3, power=0.8)
    expected = [kelpower.spearman(r=0.3, power=0.8, variance=each).n for each in ("fieller", "caruso-cliff")]
    assert answered.column("n").to_pylist() == [expected[0], None, expected[1], None]
    assert answered.schema == kelpower.solve_frame(table.slice(0, 0), test="spearman", r=0.3, power=0.8).schema


def test_a_schema_keeps_its_metadata():
    schema = pa.schema([pa.field("effect_d", pa.float64(), metadata={"unit": "none"})], metadata={"made": "by hand"})
    answered = kelpower.solve_frame(pa.table({"effect_d": [0.5]}, schema=schema), test="mean", power=0.8)
    assert answered.schema.metadata == {b"made": b"by hand"}
    assert answered.schema.field("effect_d").metadata == {b"unit": b"none"}


def test_a_stream_of_arrow_gives_a_table():
    class Stream:
        def __arrow_c_stream__(self, requested_schema=None):
            return pa.table({"effect_d": [0.5]}).__arrow_c_stream__(requested_schema)

    answered = kelpower.solve_frame(Stream(), test="mean", power=0.8)
    assert isinstance(answered, pa.Table)
    assert answered.column("n").to_pylist() == [34]


def test_only_fixed_arguments():
    answered = kelpower.solve_frame(pd.DataFrame({"x": [1, 2]}), test="two-means", effect_d=0.5, power=0.9)
    assert answered["total"].tolist() == [172, 172]


def test_parts_make_the_whole():
    random = np.random.default_rng(3)
    designs = pd.DataFrame({"effect_d": random.normal(size=5000), "n": random.integers(0, 50, 5000)})
    whole = kelpower.solve_frame(designs, test="two-means")
    parts = [kelpower.solve_frame(designs[i : i + 999], test="two-means") for i in range(0, 5000, 999)]
    pd.testing.assert_frame_equal(pd.concat(parts), whole, check_exact=True)
    pd.testing.assert_frame_equal(kelpower.solve_frame(designs, test="two-means", threads=8), whole, check_exact=True)


def test_pickles():
    designs = pd.DataFrame({"effect_d": [0.5]})
    task = functools.partial(kelpower.solve_frame, test=kelpower.two_means, power=np.float64(0.9))
    pd.testing.assert_frame_equal(pickle.loads(pickle.dumps(task))(designs), task(designs))
    batches = pickle.loads(pickle.dumps(kelpower.arrow_batches(kelpower.two_means, power=0.9)))
    assert [each.column("total").to_pylist() for each in batches([pa.record_batch({"effect_d": [0.5]})])] == [[172]]
    udf = pickle.loads(pickle.dumps(kelpower.arrow_udf("two-means", "total", ["effect_d"], power=0.9)))
    assert udf(pa.array([0.5])).to_pylist() == [172]


def test_batches_of_different_columns():
    answered = kelpower.arrow_batches("two-means", n=64)
    batches = [pa.record_batch({"effect_d": [0.5]}), pa.record_batch({"x": ["a"], "effect_d": [0.5]})]
    assert [each.schema.names for each in answered(batches)] == [
        ["effect_d", "total", "power", "status"],
        ["x", "effect_d", "total", "power", "status"],
    ]
    assert list(answered([])) == []


def test_functions_of_arrow():
    size = kelpower.arrow_udf("two-means", "n1", ["effect_d", "one_sided"], power=0.9)
    answered = size(pa.array([0.5, None, 0.5]), pa.array([False, False, True]))
    assert answered.type == pa.int64()
    assert answered.to_pylist() == [86, None, kelpower.two_means(effect_d=0.5, one_sided=True, power=0.9).n[0]]
    status = kelpower.arrow_udf("two-means", "status", ["effect_d"], power=0.9)
    assert status(pa.chunked_array([[0.5], [0.0, None]])).to_pylist() == [0, 3, 2]
    word = kelpower.arrow_udf("spearman", "n", ["variance"], r=0.3, power=0.8)
    assert word(pa.array(["fieller", "x"])).to_pylist() == [
        kelpower.spearman(r=0.3, power=0.8, variance="fieller").n,
        None,
    ]
    with pytest.raises(TypeError, match="1 arrays are expected"):
        word(pa.array(["fieller"]), pa.array(["fieller"]))


@pytest.mark.parametrize(
    ("result", "arguments", "words"),
    [
        ("x", ["effect_d"], "'x' is no result of this question; there are n1, n2, total, power, status"),
        ("power", ["effect_d", "x"], "'x' is no argument"),
        ("power", [], "at least one argument"),
        ("power", ["effect_d", "effect_d"], "given twice"),
    ],
)
def test_functions_of_arrow_that_cannot_be(result, arguments, words):
    with pytest.raises(kelpower.InputError, match=words):
        kelpower.arrow_udf("two-means", result, arguments, power=0.9)


@pytest.mark.parametrize(
    "frame",
    [
        pd.DataFrame({"effect_d": [0.5], "one_sided": [True], "x": pd.Categorical(["a"])}),
        {"effect_d": "float64", "one_sided": "bool", "x": "category"},
        pd.Series({"effect_d": np.dtype("float64"), "one_sided": np.dtype(bool), "x": pd.CategoricalDtype()}),
    ],
    ids=["frame", "mapping", "series"],
)
def test_the_frame_without_rows(frame):
    meta = kelpower.frame_meta("two-means", frame, power=0.9)
    assert len(meta) == 0
    assert list(map(str, meta.dtypes)) == ["float64", "bool", "category", "Int64", "Int64", "Int64", "float64", "int32"]


def test_schemas_from_names():
    schema = kelpower.arrow_schema("spearman", ["r", "one_sided", "variance"], power=0.9)
    assert schema.types == [pa.float64(), pa.bool_(), pa.string(), pa.int64(), pa.float64(), pa.int32()]
    assert kelpower.arrow_schema("spearman", {"r": pa.float32()}, power=0.9).names == ["r", "n", "power", "status"]
    given = pa.schema([("d", pa.float32())], metadata={"made": "by hand"})
    assert kelpower.arrow_schema("mean", given, power=0.9, rename={"d": "effect_d"}).metadata == {b"made": b"by hand"}
    meta = kelpower.frame_meta("spearman", ["r", "one_sided", "variance"], power=0.9)
    assert list(meta) == schema.names


@pytest.mark.parametrize("engine", ["pandas", "polars", "arrow"])
def test_answers_as_frames(engine):
    with warnings.catch_warnings():
        warnings.simplefilter("ignore", kelpower.NoSolutionWarning)
        some = kelpower.two_means(effect_d=[0.5, 0.0, 1e-12], power=0.9, one_sided=[True, False, False])
    frame = some.to_frame(engine)
    assert names(frame) == ["effect_d", "one_sided", "target_power", "n1", "n2", "total", "power", "status"]
    assert column(frame, "total") == [some[0].total, None, None]
    assert column(frame, "status") == [0, 3, 3]
    assert column(frame, "one_sided") == [True, False, False]
    full = kelpower.two_means(effect_d=[0.5, 0.6], power=0.9, one_sided=[False, True]).to_frame(engine)
    assert full.dtypes.equals(frame.dtypes) if engine == "pandas" else full.schema == frame.schema
    one = kelpower.two_means(effect_d=0.5, power=0.9).to_frame(engine)
    assert column(one, "n2") == [86]
    assert column(one, "one_sided") == [False]
    with pytest.raises(ValueError, match="engine is 'x', but must be one of"):
        kelpower.two_means(effect_d=0.5, power=0.9).to_frame("x")


def test_what_is_asked_and_what_is_reached_have_names_of_their_own():
    answers = kelpower.two_means(effect_d=[0.5, 0.6], power=np.array([0.8, 0.9]))
    assert answers.target_power.tolist() == [0.8, 0.9]
    assert answers.power[0] == kelpower.two_means(effect_d=0.5, power=0.8).power
    assert "power" not in answers.inputs
    uncertain = kelpower.two_means(effect_d=[0.5], power=0.8, effect_sd=0.1)
    assert list(uncertain.to_dict())[:3] == ["effect_d", "target_power", "effect_sd"]
    assured = kelpower.two_means(sd=[[10.0]], half_width=2, assurance=0.9)
    assert assured.to_dict()["target_assurance"].tolist() == [0.9]
    assert assured.to_dict()["assurance"].tolist() == [kelpower.two_means(sd=10, half_width=2, assurance=0.9).assurance]


@pytest.mark.parametrize(
    "wrong",
    [
        [True, False],
        ["0.5"],
        np.array(["0.5", 0.5], dtype=object),
        np.array([np.complex64(1)], dtype=object),
        [1j],
        np.array(["2020"], dtype="M8[D]"),
    ],
)
def test_many_designs_take_numbers_alone(wrong):
    with pytest.raises(kelpower.InputError, match="values that are not numbers"):
        kelpower.two_means(effect_d=wrong, power=0.9)


@pytest.mark.parametrize("missing", [
    [0.5, None], np.ma.array([0.5, 0.6], mask=[False, True]), pd.array([0.5, None], dtype="Float64"),
    np.ma.array([1, 2], mask=[False, True]),
    pd.Series([1, None], dtype="Int64"), pl.Series([0.5, None])])  # fmt: skip
def test_many_designs_with_missing_numbers(missing):
    with pytest.warns(kelpower.NoSolutionWarning, match="1 design has no answer, of 2. At index 1: "):
        answers = kelpower.two_means(effect_d=missing, power=0.9)
    assert answers.status.tolist() == [0, 2]


def test_no_designs():
    nothing = kelpower.two_means(effect_d=np.empty(0), power=0.9, one_sided=np.empty(0, dtype=bool))
    assert nothing.shape == (0,)
    assert nothing.total.tolist() == []
    with pytest.raises(kelpower.InputError, match="means has no entries"):
        kelpower.two_means(means=np.empty((2, 0)), sd=1, power=0.9)


def test_designs_in_integers_keep_them():
    assert kelpower.mean(effect_d=0.5, n=[10, 20]).to_dict()["n"].dtype == np.int64
    assert kelpower.mean(effect_d=0.5, n=[10.0, 20.0]).to_dict()["n"].dtype == np.float64


def test_threads_are_those_that_the_process_may_use():
    assert 1 <= _many.cores() <= os.cpu_count()
