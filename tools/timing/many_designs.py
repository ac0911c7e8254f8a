"""Times `kelpower run` on files of designs, from csv to csv, on one thread and on two.

    python3 tools/timing/many_designs.py build/release/cli/kelpower

Of each run the processor time and the time that passed are told, the least of all passes: what else the machine does can
only lengthen them. Passes of the two alternate, so that neither has the quieter hours.
"""
import os
import pathlib
import random
import resource
import subprocess
import sys
import tempfile
import time

DESIGNS = 100_000
PASSES = int(sys.argv[2]) if len(sys.argv) > 2 else 30


def two_sample_powers():
    rows = ["means,sd,n"]
    for _ in range(DESIGNS):
        rows.append(f"{50 + 5 * random.random():.3f} 47,{8 + 4 * random.random():.2f},{random.randint(10, 200)}")
    return "two-means", rows


def two_sample_sizes():
    rows = ["effect-d,power"]
    for _ in range(DESIGNS):
        rows.append(f"{0.2 + random.random():.3f},{random.uniform(0.6, 0.95):.3f}")
    return "two-means", rows


def run(program, test, designs, answers, jobs):
    """The seconds that pass, and those of the processor."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    start = time.perf_counter()
    subprocess.run([program, "run", designs, "--test", test, "--output", answers, "--jobs", str(jobs)], check=True)
    passed = time.perf_counter() - start
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return passed, after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def measure(program, folder, name, test, rows):
    designs = folder / "designs.csv"
    designs.write_text("\n".join(rows) + "\n")
    least = {1: (float("inf"),) * 2, 2: (float("inf"),) * 2}
    answers = {}
    for _ in range(PASSES):
        for jobs in least:
            times = run(program, test, designs, folder / f"answers{jobs}.csv", jobs)
            least[jobs] = tuple(map(min, least[jobs], times))
            answers[jobs] = (folder / f"answers{jobs}.csv").read_bytes()
    if answers[1] != answers[2]:
        sys.exit("the answers of one thread and of two differ")
    (one, cpu_one), (two, cpu_two) = least[1], least[2]
    print(f"{name}, {len(rows) - 1} rows: one thread {one:.3f} s ({cpu_one:.3f} s of the processor), "
          f"two {two:.3f} s ({cpu_two:.3f} s): {one / two:.2f} times as fast")


def main():
    random.seed(1)
    program = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        measure(program, folder, "powers of a two-sample t test", *two_sample_powers())
        measure(program, folder, "sizes of a two-sample t test", *two_sample_sizes())
        measure(program, folder, "start and end", "two-means", two_sample_powers()[1][:2])
    load = os.getloadavg()[0]
    print(f"load of the machine meanwhile: {load:.1f} on {os.cpu_count()} cores")


if __name__ == "__main__":
    main()
