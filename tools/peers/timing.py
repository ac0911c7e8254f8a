"""Times calls and prints what they answered, in the form that all programs of the comparison share."""

import statistics
import time

RUNS = 5
SECONDS_PER_RUN = 0.05


def cpu_seconds(call, count):
    start = time.process_time()
    for _ in range(count):
        call()
    return time.process_time() - start


def seconds_per_call(call):
    """The median of some runs of so many calls that the loop and the clock count little."""
    count = 1
    while cpu_seconds(call, count) < SECONDS_PER_RUN:
        count *= 2
    return statistics.median(cpu_seconds(call, count) for _ in range(RUNS)) / count


def print_calls(program, designs):
    """Lines of the program, a design, a question, the answer and the seconds of a call, separated by tabs.
    `designs` maps a design to its questions, and these to calls."""
    for design, calls in designs.items():
        for question, call in calls.items():
            print(program, design, question, repr(float(call())), f"{seconds_per_call(call):.6g}", sep="\t")
