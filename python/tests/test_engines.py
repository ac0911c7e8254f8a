"""Designs on engines of their own: each answers as a plain frame does."""

import functools
import os
import pathlib
import re
import shutil
import signal
import sys
import time

import kelpower
import numpy as np
import pytest

pd = pytest.importorskip("pandas")
pa = pytest.importorskip("pyarrow")

ROWS = 1000


def designs(rows=ROWS, seed=11):
    """Designs of which some are wrong."""
    random = np.random.default_rng(seed)
    return pd.DataFrame(
        {
            "study": np.arange(rows),
            "effect_d": np.where(random.uniform(size=rows) < 0.05, np.nan, random.normal(0, 0.5, rows)),
            "n": random.integers(0, 200, rows).astype(np.float64),
        }
    )


def answered(**fixed):
    return kelpower.solve_frame(designs(), test="two-means", **fixed)


def assert_same(frame, expected):
    """The same rows in any order, to the last bit."""
    frame = frame.sort_values("study").reset_index(drop=True)
    assert list(frame) == list(expected)
    for name in expected:
        left = frame[name].to_numpy(dtype=np.float64, na_value=np.nan)
        np.testing.assert_array_equal(left, expected[name].to_numpy(dtype=np.float64, na_value=np.nan))


def test_numpy_functions_of_pandas():
    given = designs().set_index("study")
    power = kelpower.ufuncs.two_means_power(given["effect_d"].fillna(0.1), 50, 60, 0.05)
    assert isinstance(power, pd.Series)
    assert power.index.equals(given.index)
    assert power[3] == kelpower.two_means(effect_d=given["effect_d"].fillna(0.1)[3], n=[50, 60]).power


def test_dask_frames():
    dask = pytest.importorskip("dask.dataframe")
    frame = dask.from_pandas(designs(), npartitions=7)
    expected = answered()
    meta = kelpower.frame_meta("two-means", frame)
    solved = frame.map_partitions(kelpower.solve_frame, test="two-means", meta=meta)
    assert solved.dtypes.equals(expected.dtypes)
    pd.testing.assert_frame_equal(solved.compute(scheduler="threads"), expected, check_exact=True)
    guessed = frame.map_partitions(kelpower.solve_frame, test="two-means")
    assert guessed.dtypes.equals(expected.dtypes)


def test_dask_arrays():
    dask = pytest.importorskip("dask.array")
    effects = np.linspace(0.1, 1, ROWS)
    power = kelpower.ufuncs.two_means_power(dask.from_array(effects, chunks=170), 50, 60, 0.05)
    assert isinstance(power, dask.Array)
    np.testing.assert_array_equal(power.compute(), kelpower.ufuncs.two_means_power(effects, 50, 60, 0.05))


def test_xarray():
    xarray = pytest.importorskip("xarray")
    pytest.importorskip("dask.array")
    effects = xarray.DataArray([0.2, 0.5, 0.8], dims="effect", coords={"effect": ["small", "medium", "large"]})
    sizes = xarray.DataArray([20, 50], dims="size")
    power = kelpower.ufuncs.two_means_power(effects, sizes, sizes, 0.05)
    assert power.dims == ("effect", "size")
    assert power.sel(effect="large")[1] == kelpower.two_means(effect_d=0.8, n=50).power
    lazy = kelpower.ufuncs.two_means_power(effects.chunk(effect=1), sizes, sizes, 0.05)
    assert lazy.chunks is not None
    xarray.testing.assert_equal(lazy.compute(), power)


def test_polars():
    pl = pytest.importorskip("polars")
    given = pl.from_pandas(designs())
    solve = functools.partial(kelpower.solve_frame, test="two-means")
    schema = solve(given.clear()).schema
    lazy = given.lazy().map_batches(solve, schema=schema).filter(pl.col("status") == 0).collect()
    expected = answered()
    assert_same(lazy.to_pandas(), expected[expected["status"] == 0].reset_index(drop=True))


def test_numpy_functions_of_polars():
    pl = pytest.importorskip("polars")
    given = pl.from_pandas(designs()).select(pl.col("effect_d").fill_null(0.1), n=pl.col("n") + 2)
    power = pl.map_batches(
        ["effect_d", "n"],
        lambda each: kelpower.ufuncs.two_means_power(each[0], each[1], each[1], 0.05),
        return_dtype=pl.Float64,
        is_elementwise=True,
    )
    row = given.lazy().with_columns(power=power).collect().row(5, named=True)
    assert row["power"] == kelpower.two_means(effect_d=row["effect_d"], n=row["n"]).power
    one = given.with_columns(power=kelpower.ufuncs.two_means_power(pl.col("effect_d"), 20, 20, 0.05))
    assert one["power"][5] == kelpower.two_means(effect_d=row["effect_d"], n=20).power


def test_duckdb():
    duckdb = pytest.importorskip("duckdb")
    given = designs()
    expected = answered()
    with duckdb.connect() as connection:
        connection.register("designs", given)
        power = kelpower.arrow_udf("two-means", "power", ["effect_d", "n"])
        connection.create_function(
            "kel_power", power, ["DOUBLE", "DOUBLE"], "DOUBLE", type="arrow", null_handling="special"
        )
        total = kelpower.arrow_udf("two-means", "total", ["effect_d"], power=0.9)
        connection.create_function("kel_total", total, ["DOUBLE"], "BIGINT", type="arrow", null_handling="special")
        rows = connection.sql("select study, kel_power(effect_d, n), kel_total(effect_d) from designs order by study")
        found = rows.fetchall()
        table = kelpower.solve_frame(connection.sql("select * from designs"), test="two-means")
    assert [row[1] for row in found] == [None if np.isnan(each) else each for each in expected["power"]]
    totals = kelpower.solve_frame(given[["effect_d"]], test="two-means", power=0.9)["total"]
    assert [row[2] for row in found] == [None if pd.isna(each) else each for each in totals]
    assert_same(table.to_pandas(), expected)


@pytest.fixture(scope="module")
def spark():
    pyspark = pytest.importorskip("pyspark.sql")
    if not (shutil.which("java") or os.environ.get("JAVA_HOME")):
        pytest.skip("Spark needs Java")
    os.environ["PYSPARK_PYTHON"] = sys.executable
    builder = pyspark.SparkSession.builder.master("local[2]").appName("kelpower")
    for name, value in {
        "spark.ui.enabled": "false",
        "spark.driver.bindAddress": "127.0.0.1",
        "spark.driver.host": "127.0.0.1",
        "spark.driver.memory": "512m",
        "spark.sql.shuffle.partitions": "2",
        "spark.sql.execution.arrow.maxRecordsPerBatch": "100",
    }.items():
        builder = builder.config(name, value)
    session = builder.getOrCreate()
    session.sparkContext.setLogLevel("ERROR")
    yield session
    session.stop()


@pytest.mark.filterwarnings("default")  # what Spark itself warns of
def test_spark(spark, tmp_path):
    given = designs()
    given.to_parquet(tmp_path / "designs.parquet")
    frame = spark.read.parquet(str(tmp_path / "designs.parquet")).repartition(3)
    schema = kelpower.spark_schema("two-means", frame)
    solved = frame.mapInArrow(kelpower.arrow_batches("two-means"), schema=schema)
    assert solved.schema.simpleString() == (
        "struct<study:bigint,effect_d:double,n:double,total:bigint,power:double,status:int>"
    )
    expected = answered()
    rows = sorted(map(tuple, solved.select("study", "total", "power", "status").collect()))
    wanted = expected[["study", "total", "power", "status"]].astype(object)
    wanted = wanted.where(wanted.notna(), None)
    assert rows == list(wanted.itertuples(index=False, name=None))


@pytest.mark.filterwarnings("default")  # what Ray itself warns of
@pytest.mark.parametrize("kind", ["pandas", "pyarrow"])
def test_ray(ray, kind):
    data = ray.data.from_pandas(designs())
    solved = data.map_batches(kelpower.solve_frame, batch_format=kind, fn_kwargs={"test": "two-means"}, batch_size=300)
    assert_same(solved.to_pandas(), answered())


@pytest.fixture(scope="module")
def ray():
    module = pytest.importorskip("ray")
    pytest.importorskip("ray.data")
    os.environ["RAY_USAGE_STATS_ENABLED"] = "0"
    module.init(num_cpus=2, include_dashboard=False, log_to_driver=False, object_store_memory=100_000_000)
    yield module
    module.shutdown()


def _memory():
    """The most memory that this process ever had, in bytes."""
    status = pathlib.Path("/proc/self/status").read_text()
    return int(re.search(r"VmHWM:\s+(\d+) kB", status)[1]) * 1024


def _until(condition, seconds=300):
    end = time.monotonic() + seconds
    while not condition():
        assert time.monotonic() < end, "this takes too long"
        time.sleep(0.02)


@pytest.mark.long
@pytest.mark.skipif(sys.platform != "linux", reason="the memory of a process is read from Linux")
@pytest.mark.filterwarnings("default")  # what a cluster warns of that loses a worker
def test_ten_million_designs_outlive_a_worker(tmp_path):
    dask = pytest.importorskip("dask.dataframe")
    distributed = pytest.importorskip("distributed")
    parquet = pytest.importorskip("pyarrow.parquet")
    files, rows, limit = 40, 250_000, 1_000_000_000
    (tmp_path / "in").mkdir()
    for file in range(files):
        parquet.write_table(pa.Table.from_pandas(designs(rows, file)), tmp_path / "in" / f"{file:02}.parquet")

    cluster = distributed.LocalCluster(
        n_workers=2, threads_per_worker=1, processes=True, memory_limit=limit, dashboard_address=None
    )
    with cluster, distributed.Client(cluster) as client:
        before = client.run(os.getpid)
        frame = dask.read_parquet(tmp_path / "in")
        meta = kelpower.frame_meta("two-means", frame)
        solved = frame.map_partitions(kelpower.solve_frame, test="two-means", meta=meta)
        run = client.compute(solved.to_parquet(tmp_path / "out", compute=False))
        _until(lambda: len(list((tmp_path / "out").glob("*.parquet"))) > 4)
        peaks = list(client.run(_memory).values())
        assert not run.done()
        os.kill(next(iter(before.values())), signal.SIGKILL)
        run.result(timeout=300)
        _until(lambda: len(client.run(os.getpid)) == 2)
        assert set(client.run(os.getpid).values()) != set(before.values())
        peaks += client.run(_memory).values()
    assert max(peaks) < limit

    for file in range(files):
        given = parquet.read_table(tmp_path / "in" / f"{file:02}.parquet")
        expected = kelpower.solve_frame(given, test="two-means")
        found = parquet.read_table(tmp_path / "out" / f"part.{file}.parquet")
        assert found.num_rows == rows
        for name in expected.schema.names:
            assert found.column(name).cast(expected.column(name).type).equals(expected.column(name)), (file, name)
