"""What frames of pandas, polars and Arrow have in common: columns are read as arrays, and results are put beside them.

None of these packages is imported before a frame of it is met, or asked for.
"""

from __future__ import annotations

import sys
from collections.abc import Mapping, Sequence
from typing import Any, Protocol

import numpy as np

from ._errors import InputError
from ._many import NO_NUMBERS, Floats
from ._rows import Answers, Codes, Use, integers_of


class Engine(Protocol):
    """A kind of frames."""

    def names(self, frame: Any) -> list[Any]:
        """The names of the columns."""

    def numbers(self, frame: Any, column: str) -> Floats:
        """A column of numbers, with NaN where it has none."""

    def codes(self, frame: Any, use: Use) -> Codes:
        """A column of flags or words as places in what is allowed, -1 for anything else."""

    def joined(self, frame: Any, answers: Answers) -> Any:
        """The frame with the results after its columns."""

    def made(self, columns: Mapping[str, Any], whole: frozenset[str]) -> Any:
        """A new frame. The columns that are named as whole have integers, or none."""


def _refuse(column: object, kind: object, wanted: str) -> InputError:
    return InputError(f"The column {column!r} is of the type {kind}, but must have {wanted}.")


def number_of(value: Any) -> float:
    """A number of any kind as a double; NaN for what is none."""
    if isinstance(value, NO_NUMBERS):
        return np.nan
    try:
        return float(value)
    except (TypeError, ValueError, OverflowError):
        return np.nan


def _code_of(value: Any, allowed: Mapping[Any, int]) -> int:
    is_flag = isinstance(value, (bool, np.bool_))
    if not is_flag and not isinstance(value, str):
        return -1
    return allowed.get((is_flag, value), -1)


def _codes_of(values: Sequence[Any], use: Use) -> Codes:
    """Flags or words among other objects. A word may be spelt with underscores, as names are."""
    allowed = {(isinstance(each, bool), each): code for code, each in enumerate(use.allowed)}
    allowed |= {(False, each.replace("-", "_")): i for i, each in enumerate(use.allowed) if isinstance(each, str)}
    return np.fromiter((_code_of(value, allowed) for value in values), dtype=np.int64, count=len(values))


def _asks_for_flags(use: Use) -> bool:
    return isinstance(use.allowed[0], bool)


def _wanted(use: Use) -> str:
    return "true and false" if _asks_for_flags(use) else "words"


def _at(values: Any, missing: float, places: Any) -> Any:
    """The values of categories at places, of which -1 stands for a missing one."""
    return np.append(values, values.dtype.type(missing))[places]


class _Pandas:
    def names(self, frame: Any) -> list[Any]:
        return list(frame.columns)

    def numbers(self, frame: Any, column: str) -> Floats:
        import pandas as pd

        series = frame[column]
        if isinstance(series.dtype, pd.CategoricalDtype):
            categories = self._doubles(pd.Series(series.cat.categories), column)
            found: Floats = _at(categories, np.nan, series.cat.codes.to_numpy())
            return found
        return self._doubles(series, column)

    def _doubles(self, series: Any, column: str) -> Floats:
        from pandas.api import types

        kind = series.dtype
        if types.is_object_dtype(kind):
            return np.fromiter(map(number_of, series), dtype=np.float64, count=len(series))
        if types.is_bool_dtype(kind) or types.is_complex_dtype(kind) or not types.is_numeric_dtype(kind):
            raise _refuse(column, kind, "numbers")
        numbers: Floats = series.to_numpy(dtype=np.float64, na_value=np.nan)
        return numbers

    def codes(self, frame: Any, use: Use) -> Codes:
        import pandas as pd
        from pandas.api import types

        series = frame[use.column]
        if isinstance(series.dtype, pd.CategoricalDtype):
            found: Codes = _at(_codes_of(series.cat.categories, use), -1, series.cat.codes.to_numpy())
            return found
        kind = series.dtype
        if types.is_object_dtype(kind):
            return _codes_of(series, use)
        if types.is_bool_dtype(kind) and _asks_for_flags(use):
            return np.where(series.isna(), -1, series.fillna(False).to_numpy(dtype=np.int64))
        if types.is_string_dtype(kind) and not _asks_for_flags(use):
            places, words = pd.factorize(series)
            return np.asarray(_at(_codes_of(words, use), -1, places))
        raise _refuse(use.column, kind, _wanted(use))

    def joined(self, frame: Any, answers: Answers) -> Any:
        columns = {name: self._column(answers, name) for name in answers.results}
        return frame.assign(**columns, status=answers.status)

    def _column(self, answers: Answers, name: str) -> Any:
        values = answers.results[name]
        return self._integers(values) if name in answers.sizes else values

    def _integers(self, values: Any) -> Any:
        import pandas as pd

        return pd.arrays.IntegerArray(*integers_of(values))

    def made(self, columns: Mapping[str, Any], whole: frozenset[str]) -> Any:
        import pandas as pd

        return pd.DataFrame(
            {name: self._integers(values) if name in whole else values for name, values in columns.items()}
        )


class _Polars:
    def names(self, frame: Any) -> list[Any]:
        return list(frame.columns)

    def numbers(self, frame: Any, column: str) -> Floats:
        import polars as pl

        series = frame.get_column(column)
        if series.dtype == pl.Object:
            return np.fromiter(map(number_of, series), dtype=np.float64, count=len(series))
        if not (series.dtype.is_numeric() or series.dtype == pl.Null):
            raise _refuse(column, series.dtype, "numbers")
        numbers: Floats = series.cast(pl.Float64).to_numpy()
        return numbers

    def codes(self, frame: Any, use: Use) -> Codes:
        import polars as pl

        series = frame.get_column(use.column)
        if series.dtype in (pl.Object, pl.Null):
            return _codes_of(series, use)
        if series.dtype == pl.Boolean and _asks_for_flags(use):
            codes: Codes = series.cast(pl.Int64).fill_null(-1).to_numpy()
            return codes
        if series.dtype in (pl.String, pl.Categorical, pl.Enum) and not _asks_for_flags(use):
            return self._words(series.cast(pl.String), use)
        raise _refuse(use.column, series.dtype, _wanted(use))

    def _words(self, series: Any, use: Use) -> Codes:
        import polars as pl

        words = series.unique()
        codes = series.replace_strict(words, _codes_of(words, use), default=-1, return_dtype=pl.Int64)
        return np.asarray(codes.to_numpy())

    def joined(self, frame: Any, answers: Answers) -> Any:
        columns = {name: self._column(name, values, name in answers.sizes) for name, values in answers.results.items()}
        return frame.with_columns(**columns, status=answers.status)

    def _column(self, name: str, values: Any, is_whole: bool) -> Any:
        import polars as pl

        if is_whole:
            integers, missing = integers_of(values)
            return pl.Series(name, integers).set(pl.Series(missing), None)
        is_text = isinstance(values, np.ndarray) and values.dtype.kind in "OU"
        return pl.Series(name, values.tolist() if is_text else values, nan_to_null=isinstance(values, np.ndarray))

    def made(self, columns: Mapping[str, Any], whole: frozenset[str]) -> Any:
        import polars as pl

        return pl.DataFrame([self._column(name, values, name in whole) for name, values in columns.items()])


class _Arrow:
    def names(self, frame: Any) -> list[Any]:
        return list(frame.schema.names)

    def numbers(self, frame: Any, column: str) -> Floats:
        return arrow_numbers(frame.column(column), column)

    def codes(self, frame: Any, use: Use) -> Codes:
        return arrow_codes(frame.column(use.column), use)

    def joined(self, frame: Any, answers: Answers) -> Any:
        import pyarrow as pa

        columns = {name: arrow_result(answers, name) for name in (*answers.results, "status")}
        fields = [pa.field(name, values.type) for name, values in columns.items()]
        schema = pa.schema([*frame.schema, *fields], metadata=frame.schema.metadata)
        return type(frame).from_arrays([*frame.columns, *columns.values()], schema=schema)

    def made(self, columns: Mapping[str, Any], whole: frozenset[str]) -> Any:
        import pyarrow as pa

        return pa.table({name: self._made(values, name in whole) for name, values in columns.items()})

    def _made(self, values: Any, is_whole: bool) -> Any:
        import pyarrow as pa

        if is_whole:
            integers, missing = integers_of(values)
            return pa.array(integers, mask=missing)
        return pa.array(values, from_pandas=True)


def _plain_array(array: Any) -> Any:
    """An array of Arrow without a dictionary."""
    import pyarrow as pa

    return array.cast(array.type.value_type) if pa.types.is_dictionary(array.type) else array


def arrow_numbers(array: Any, column: str) -> Floats:
    """An array of Arrow, in chunks or not, as doubles with NaN for null."""
    import pyarrow as pa

    array, is_kind = _plain_array(array), pa.types
    kind = array.type
    if not any(test(kind) for test in (is_kind.is_integer, is_kind.is_floating, is_kind.is_decimal, is_kind.is_null)):
        raise _refuse(column, kind, "numbers")
    return np.asarray(array.cast(pa.float64(), safe=False))


def arrow_codes(array: Any, use: Use) -> Codes:
    """An array of flags or words of Arrow as places in what is allowed."""
    import pyarrow as pa
    import pyarrow.compute as pc

    array = _plain_array(array)
    kind = array.type
    if pa.types.is_null(kind):
        return np.full(len(array), -1, dtype=np.int64)
    if pa.types.is_boolean(kind) and _asks_for_flags(use):
        return np.asarray(pc.fill_null(array.cast(pa.int64()), -1))
    if str(kind) not in ("string", "large_string", "string_view") or _asks_for_flags(use):
        raise _refuse(use.column, kind, _wanted(use))
    array = array.cast(pa.large_string())
    words = pc.unique(array)
    places = pc.index_in(array, value_set=words)
    return _codes_of(words.to_pylist(), use)[np.asarray(places)] if len(array) else np.empty(0, dtype=np.int64)


def arrow_result(answers: Answers, name: str) -> Any:
    """A result as an array of Arrow, null where it is missing."""
    import pyarrow as pa

    if name == "status":
        return pa.array(answers.status)
    if name in answers.sizes:
        integers, missing = integers_of(answers.results[name])
        return pa.array(integers, mask=missing)
    values = answers.results[name]
    return pa.array(values, mask=np.isnan(values))


_PANDAS, _POLARS, _ARROW = _Pandas(), _Polars(), _Arrow()


def named(engine: str) -> Engine:
    """The kind of frames that a word asks for."""
    engines: dict[str, Engine] = {"pandas": _PANDAS, "polars": _POLARS, "arrow": _ARROW}
    if engine not in engines:
        raise ValueError(f"engine is {engine!r}, but must be one of {', '.join(map(repr, engines))}")
    return engines[engine]


def _is_of(frame: Any, module: str, *classes: str) -> bool:
    """Whether a frame is of a class of a package. A package that is not imported yet has no frames."""
    loaded = sys.modules.get(module)
    return loaded is not None and isinstance(frame, tuple(getattr(loaded, name) for name in classes))


def adopted(frame: Any) -> tuple[Engine, Any]:
    """The kind of a frame, and the frame; what speaks Arrow's stream protocol is adopted as a table."""
    if _is_of(frame, "pandas", "DataFrame"):
        return _PANDAS, frame
    if _is_of(frame, "polars", "DataFrame"):
        return _POLARS, frame
    if _is_of(frame, "pyarrow", "Table", "RecordBatch"):
        return _ARROW, frame
    if hasattr(frame, "__arrow_c_stream__"):
        import pyarrow as pa

        return _ARROW, pa.table(frame)
    kind = f"{type(frame).__module__}.{type(frame).__qualname__}"
    raise TypeError(
        f"a frame of pandas, polars or Arrow is expected, not {kind}; the frames of engines answer it in parts, as by "
        "map_partitions or map_batches"
    )
