"""Designs in the rows of frames, on one machine or on many."""

from __future__ import annotations

import inspect
from collections.abc import Callable, Iterable, Iterator, Mapping
from typing import TYPE_CHECKING, Any

from . import _catalogue, _engines, _request
from ._errors import InputError
from ._rows import Answers, Question, place

if TYPE_CHECKING:
    import pandas as pd
    import pyarrow as pa
    from pyspark.sql.types import StructType

Renamed = Mapping[str, "str | None"]


def frame_of_columns(columns: Mapping[str, Any], engine: str, whole: Iterable[str] = ()) -> Any:
    """Columns as a frame; those that are `whole` have integers of 64 bits, missing where there is none."""
    return _engines.named(engine).made(columns, frozenset(whole))


def solve_frame(frame: Any, *, test: Any, rename: Renamed | None = None, threads: int | None = 1, **fixed: Any) -> Any:
    """Answer the designs of a frame, one a row.

    The columns that have names of arguments are arguments; all others are kept as they are. What neither columns nor
    fixed arguments give is solved for, which is the same for all rows. The answer to a row depends on that row alone,
    so that any engine may split a frame as it likes.

    Parameters
    ----------
    frame : pandas.DataFrame, polars.DataFrame, pyarrow.Table or pyarrow.RecordBatch
        The designs. A column is named like an argument, such as ``effect_d``; ``n1`` and ``n2`` are entries of ``n``,
        while ``n`` is one number for all groups. A target may be called ``target_power``, as in answers, or ``power``.
        Another object with Arrow's stream protocol is answered as an Arrow table.
    test : str or function
        The test, such as ``"two-means"`` or `two_means`.
    rename : mapping of str to str, optional
        Arguments of columns that are named otherwise, such as ``{"d": "effect_d"}``. With None in place of the argument
        a column is none, although it has the name of one.
    threads : int, optional
        How many threads to use; None for all cores. One by default, because engines use the cores themselves.
    **fixed
        The arguments that are the same for all rows.

    Returns
    -------
    frame of the same kind
        The columns of `frame`, then the results, then ``status``: 0 answered, 2 refused (an argument is wrong or
        missing, or arguments do not go together), 3 without a solution. A row that is not answered has missing results.
        Sizes are integers of 64 bits (``Int64`` in pandas); a size that is larger counts as no solution. Figures are
        doubles. ``power`` is what a design reaches; beside a column ``power``, which is its target, it is
        ``achieved_power``, and so of ``half_width`` and ``assurance``.

    Raises
    ------
    InputError
        The columns and the fixed arguments do not make a question, or a column has the name of a result.
    TypeError
        `frame` is no frame.

    Notes
    -----
    Names and types of the results follow from the names of the columns and the fixed arguments, never from the rows.
    Flags and words may be columns; where only some of their values give a figure, it is missing in other rows.

    Examples
    --------
    >>> import kelpower
    >>> import pandas as pd
    >>> designs = pd.DataFrame({"study": ["a", "b"], "effect_d": [0.5, 0.8]})
    >>> kelpower.solve_frame(designs, test="two-means", power=0.9)
      study  effect_d  n1  n2  total     power  status
    0     a       0.5  86  86    172  0.903230       0
    1     b       0.8  34  34     68  0.901502       0

    """
    engine, adopted = _engines.adopted(frame)
    question = Question(test, engine.names(adopted), rename, fixed)
    return _solved(engine, question, adopted, threads)


def _solved(engine: _engines.Engine, question: Question, frame: Any, threads: int | None) -> Any:
    numbers = [engine.numbers(frame, use.column) for use in question.numbers]
    codes = [engine.codes(frame, use) for use in question.choices]
    return engine.joined(frame, question.answer(numbers, codes, len(frame), threads))


def _type_of(test: Any, name: str, types: Mapping[str, Any]) -> Any:
    """The type of a column by the argument that it is."""
    found = place(_catalogue.find(test), name)
    kind = found[0].kind if found else ""
    return types["flag"] if kind == "flag" else types["choice"] if kind == "choice" else types["number"]


def frame_meta(test: Any, frame: Any, *, rename: Renamed | None = None, **fixed: Any) -> pd.DataFrame:
    """What `solve_frame` gives for such a frame, without rows, as Dask's ``meta``.

    Parameters
    ----------
    test : str or function
        As of `solve_frame`.
    frame : pandas.DataFrame, dask.dataframe.DataFrame, mapping or iterable of str
        A frame like those that will be answered, or the dtypes of its columns by name, or the names of its columns
        alone: numbers are then doubles.
    rename : mapping of str to str, optional
        As of `solve_frame`.
    **fixed
        As of `solve_frame`.

    Returns
    -------
    pandas.DataFrame
        A frame with the columns and dtypes of the answer, and no rows.

    Raises
    ------
    InputError
        As of `solve_frame`.

    Examples
    --------
    >>> import kelpower
    >>> list(kelpower.frame_meta("two-means", ["effect_d"], power=0.9))
    ['effect_d', 'n1', 'n2', 'total', 'power', 'status']

    """
    import pandas as pd

    frame = getattr(frame, "_meta", frame)
    if not isinstance(frame, pd.DataFrame):
        if not hasattr(frame, "items"):
            types = {"number": "float64", "flag": "bool", "choice": "object"}
            frame = {name: _type_of(test, name, types) for name in frame}
        frame = pd.DataFrame({name: pd.Series(dtype=kind) for name, kind in frame.items()})
    return solve_frame(frame.iloc[:0], test=test, rename=rename, **fixed)


def arrow_schema(test: Any, schema: Any, *, rename: Renamed | None = None, **fixed: Any) -> pa.Schema:
    """The schema of what `solve_frame` gives for Arrow tables with a schema.

    Parameters
    ----------
    test : str or function
        As of `solve_frame`.
    schema : pyarrow.Schema, mapping or iterable of str
        The schema of what will be answered, or the types of its columns by name, or the names of its columns alone:
        numbers are then doubles.
    rename : mapping of str to str, optional
        As of `solve_frame`.
    **fixed
        As of `solve_frame`.

    Returns
    -------
    pyarrow.Schema
        The columns of `schema`, then the results and ``status``.

    Raises
    ------
    InputError
        As of `solve_frame`.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.arrow_schema("mean", ["effect_d"], power=0.9).names
    ['effect_d', 'n', 'power', 'status']

    """
    import pyarrow as pa

    if not isinstance(schema, (pa.Schema, Mapping)):
        types = {"number": pa.float64(), "flag": pa.bool_(), "choice": pa.string()}
        schema = {name: _type_of(test, name, types) for name in schema}
    if not isinstance(schema, pa.Schema):
        schema = pa.schema(list(schema.items()))
    return solve_frame(schema.empty_table(), test=test, rename=rename, **fixed).schema


def spark_schema(test: Any, schema: Any, *, rename: Renamed | None = None, **fixed: Any) -> StructType:
    """The schema of a Spark data frame that is answered with `arrow_batches`.

    Parameters
    ----------
    test : str or function
        As of `solve_frame`.
    schema : pyspark.sql.types.StructType or pyspark.sql.DataFrame
        The schema of what will be answered, or a data frame that has it.
    rename : mapping of str to str, optional
        As of `solve_frame`.
    **fixed
        As of `solve_frame`.

    Returns
    -------
    pyspark.sql.types.StructType
        The fields of `schema`, then the results and ``status``.

    Raises
    ------
    InputError
        As of `solve_frame`.

    """
    from pyspark.sql.types import DoubleType, IntegerType, LongType, StructField, StructType

    fields = list(getattr(schema, "schema", schema).fields)
    question = Question(test, [each.name for each in fields], rename, fixed)
    results = [StructField(name, LongType() if name in question.sizes else DoubleType()) for name in question.results]
    return StructType([*fields, *results, StructField("status", IntegerType())])


class _Batches:
    """Answers record batches as they come. The question is made anew in each process."""

    def __init__(self, test: str, rename: Renamed | None, threads: int | None, fixed: Mapping[str, Any]) -> None:
        self._test = test
        self._rename = rename
        self._threads = threads
        self._fixed = fixed

    def __call__(self, batches: Iterable[pa.RecordBatch]) -> Iterator[pa.RecordBatch]:
        question = None
        for batch in batches:
            engine, adopted = _engines.adopted(batch)
            if question is None or question.names != engine.names(adopted):
                question = Question(self._test, engine.names(adopted), self._rename, self._fixed)
            yield _solved(engine, question, adopted, self._threads)


def arrow_batches(
    test: Any, *, rename: Renamed | None = None, threads: int | None = 1, **fixed: Any
) -> Callable[[Iterable[pa.RecordBatch]], Iterator[pa.RecordBatch]]:
    """A function that answers record batches one after another, as Spark's ``mapInArrow`` takes it.

    Parameters
    ----------
    test : str or function
        As of `solve_frame`.
    rename : mapping of str to str, optional
        As of `solve_frame`.
    threads : int, optional
        As of `solve_frame`.
    **fixed
        As of `solve_frame`.

    Returns
    -------
    callable
        It takes an iterator of record batches and gives an iterator of the same with results. It can be pickled.

    Examples
    --------
    >>> import kelpower
    >>> import pyarrow as pa
    >>> answered = kelpower.arrow_batches("mean", power=0.9)
    >>> batches = [pa.record_batch({"effect_d": [0.5]}), pa.record_batch({"effect_d": [0.2, 0.8]})]
    >>> [batch["n"].to_pylist() for batch in answered(batches)]
    [[44], [265, 19]]

    """
    return _Batches(_catalogue.find(test).name, rename, threads, _plain(fixed))


def _plain(fixed: Mapping[str, Any]) -> dict[str, Any]:
    return {name: _request.plain(value) for name, value in fixed.items()}


class _Udf:
    """Answers arrays of Arrow by their places. The question is made anew in each process."""

    def __init__(self, test: str, result: str, arguments: tuple[str, ...], fixed: Mapping[str, Any]) -> None:
        self._given = (test, result, arguments, fixed)
        self._result = result
        self._question = Question(test, arguments, None, fixed)
        used = {use.column for use in (*self._question.numbers, *self._question.choices)}
        for name in arguments:
            if name not in used:
                raise InputError(f"{name!r} is no argument of {self._question.test.function}.")
        if result not in (*self._question.results, "status"):
            known = ", ".join((*self._question.results, "status"))
            raise InputError(f"{result!r} is no result of this question; there are {known}.")
        parameters = [inspect.Parameter(name, inspect.Parameter.POSITIONAL_ONLY) for name in arguments]
        self.__signature__ = inspect.Signature(parameters)  # DuckDB counts the parameters

    def __call__(self, *arrays: Any) -> Any:
        names = self._question.names
        if len(arrays) != len(names):
            raise TypeError(f"{len(names)} arrays are expected ({', '.join(names)}), not {len(arrays)}")
        return _engines.arrow_result(self._answers(dict(zip(names, arrays, strict=True))), self._result)

    def _answers(self, arrays: Mapping[str, Any]) -> Answers:
        question = self._question
        numbers = [_engines.arrow_numbers(arrays[use.column], use.column) for use in question.numbers]
        codes = [_engines.arrow_codes(arrays[use.column], use) for use in question.choices]
        count = len(next(iter(arrays.values())))
        return question.answer(numbers, codes, count, 1)

    def __reduce__(self) -> tuple[Any, ...]:
        return _Udf, self._given


def arrow_udf(test: Any, result: str, arguments: Iterable[str], **fixed: Any) -> Callable[..., pa.Array]:
    """A function of arrays of Arrow that gives one result, as DuckDB's functions of the type ``arrow``.

    Parameters
    ----------
    test : str or function
        As of `solve_frame`.
    result : str
        The result that it gives, such as ``"power"``, ``"n1"`` or ``"status"``.
    arguments : iterable of str
        What it takes, in this order, by the names that `solve_frame` knows.
    **fixed
        The arguments that are the same in each call.

    Returns
    -------
    callable
        It takes as many arrays of equal length, and gives an array with null where there is no answer: of doubles, of
        integers of 64 bits for a size, of 32 bits for the status. It can be pickled.

    Raises
    ------
    InputError
        These arguments do not make a question, or it has no such result.

    Examples
    --------
    >>> import kelpower
    >>> import pyarrow as pa
    >>> size = kelpower.arrow_udf("mean", "n", ["effect_d", "power"])
    >>> size(pa.array([0.5, 0.2]), pa.array([0.8, 0.9])).to_pylist()
    [34, 265]

    """
    names = tuple(arguments)
    if not names:
        raise InputError("A function of columns needs at least one argument.")
    return _Udf(_catalogue.find(test).name, result, names, _plain(fixed))
