"""Runs long computations of the program, with and without a terminal, and interrupts them as Ctrl-C does.

Nothing is timed: each step waits for what the program shows, or for the processor time that it has used.
"""
import os
import pathlib
import pty
import select
import signal
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = sys.argv.pop(1)
PATIENCE = 240  # seconds until a step is given up

LONG_SEARCH = "two-proportions --proportions 0.5,0.5285 --power 0.8 --method conditional".split()
SHORT_SEARCH = "two-proportions --proportions 0.5,0.75 --power 0.8 --method conditional".split()
LONG_WITHOUT_QUESTIONS = "paired-proportions --p12 0.4501 --p21 0.45 --power 0.9 --alpha 0.01 --exact".split()
LONG_CHART = (
    "two-proportions --proportions 0.5,0.75 --n 850 --method conditional --chart sizes --from 800,800 --to 860,860"
).split()

STOPPED_ROWS = b"kelpower: The computation was stopped; the rows up to there are whole."
STOPPED = b"kelpower: The computation was stopped; there is no answer."


def start(arguments, error_stream):
    return subprocess.Popen([PROGRAM, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=error_stream)


def open_terminal():
    try:
        return pty.openpty()
    except OSError as error:  # such as in a bare chroot, where no devpts is mounted
        raise unittest.SkipTest(f"there are no terminals here: {error}") from error


def read_until(terminal, part):
    """What comes from the terminal until `part` has come."""
    text = b""
    end = time.monotonic() + PATIENCE
    while part not in text:
        ready, _, _ = select.select([terminal], [], [], max(0, end - time.monotonic()))
        if not ready:
            raise AssertionError(f"{part!r} has not come; there is {text!r}")
        text += os.read(terminal, 4096)
    return text


def wait_until(condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError("waited in vain")
        time.sleep(0.01)


def processor_seconds(process):
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return int(fields[11]) / os.sysconf("SC_CLK_TCK")


def catches_interrupts(process):
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    caught = next(line for line in status.splitlines() if line.startswith("SigCgt:"))
    return int(caught.split()[1], 16) >> (signal.SIGINT - 1) & 1 == 1


class Interrupts(unittest.TestCase):
    def test_a_search_on_a_terminal_shows_progress_and_stops(self):
        master, slave = open_terminal()
        process = start(LONG_SEARCH, slave)
        os.close(slave)
        progress = read_until(master, b"s so far")
        process.send_signal(signal.SIGINT)
        rest = read_until(master, b"\n")
        out, _ = process.communicate(timeout=PATIENCE)
        os.close(master)
        self.assertEqual(process.returncode, 130)
        self.assertEqual(out, b"")
        shown = progress + rest
        self.assertTrue(shown.startswith(b"\rComputing the sample size, "), shown)
        # The line is blank again when the sentence is written over it.
        self.assertRegex(shown, rb"s so far\r +\r" + STOPPED + rb"\r\n$")

    def test_without_a_terminal_there_is_no_progress(self):
        process = start(LONG_SEARCH, subprocess.PIPE)
        wait_until(lambda: processor_seconds(process) > 1.5)  # a terminal would show a line by now
        process.send_signal(signal.SIGINT)
        out, error = process.communicate(timeout=PATIENCE)
        self.assertEqual((process.returncode, out, error), (130, b"", STOPPED + b"\n"))

    def test_a_short_search_on_a_terminal_shows_nothing(self):
        # On a machine that stands still for a second no search is short, so there are several attempts.
        for _ in range(5):
            master, slave = open_terminal()
            begin = time.monotonic()
            process = start(SHORT_SEARCH, slave)
            out, _ = process.communicate(timeout=PATIENCE)
            seconds = time.monotonic() - begin
            ready, _, _ = select.select([master], [], [], 0)
            os.close(slave)
            os.close(master)
            self.assertEqual(process.returncode, 0)
            self.assertIn(b"64 observations in each of 2 groups", out)
            if not ready:
                return
            self.assertGreater(seconds, 1)
        self.fail("the search never took less than a second")

    def test_a_second_interrupt_ends_the_program_at_once(self):
        # Between the two the program may come to its end, so there are several attempts.
        for _ in range(5):
            process = start(LONG_WITHOUT_QUESTIONS, subprocess.PIPE)
            wait_until(lambda: catches_interrupts(process))
            process.send_signal(signal.SIGINT)
            wait_until(lambda: not catches_interrupts(process))
            process.send_signal(signal.SIGINT)
            out, error = process.communicate(timeout=PATIENCE)
            if process.returncode == -signal.SIGINT:
                self.assertEqual((out, error), (b"", b""))
                return
        self.fail("the program never ended by the second interrupt")

    def test_an_interrupted_file_of_designs_leaves_whole_rows(self):
        with tempfile.TemporaryDirectory() as folder:
            rows = 100_000
            designs = pathlib.Path(folder) / "designs.csv"
            designs.write_text("effect-d,power\n" + "0.003,0.8\n" * rows)
            answers = pathlib.Path(folder) / "answers.csv"
            for jobs in ("1", "2"):
                answers.unlink(missing_ok=True)
                process = start(["run", str(designs), "--test", "mean", "--jobs", jobs, "--output", str(answers)],
                                subprocess.PIPE)
                wait_until(lambda: answers.exists() and answers.read_text().count("\n") > 20)
                process.send_signal(signal.SIGINT)
                out, error = process.communicate(timeout=PATIENCE)
                self.assertEqual((process.returncode, out, error), (130, b"", STOPPED_ROWS + b"\n"))
                text = answers.read_text()
                lines = text.splitlines()
                self.assertTrue(text.endswith("\n"))
                self.assertLess(len(lines), rows + 1)
                self.assertEqual({line.count(",") for line in lines}, {lines[0].count(",")})
                self.assertEqual(len(set(lines[1:])), 1)

    def test_a_file_of_designs_on_a_terminal_shows_a_bar(self):
        with tempfile.TemporaryDirectory() as folder:
            designs = pathlib.Path(folder) / "designs.csv"
            designs.write_text("proportions,power,exact\n" + "0.5 0.5285,0.8,true\n" * 1000)
            master, slave = open_terminal()
            process = start(["run", str(designs), "--test", "two-proportions"], slave)
            os.close(slave)
            progress = read_until(master, b"%")
            process.send_signal(signal.SIGINT)
            rest = read_until(master, b"\n")
            process.communicate(timeout=PATIENCE)
            os.close(master)
            self.assertEqual(process.returncode, 130)
            self.assertRegex(progress, rb"^\rDesigns \[#* *\] +[0-9]+%")
            self.assertRegex(rest, rb"\r +\r" + STOPPED_ROWS + rb"\r\n$")

    def test_an_interrupted_chart_leaves_no_file(self):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "chart.svg"
            process = start([*LONG_CHART, "--output", str(file)], subprocess.PIPE)
            wait_until(lambda: processor_seconds(process) > 0.3)
            process.send_signal(signal.SIGINT)
            out, error = process.communicate(timeout=PATIENCE)
            self.assertEqual((process.returncode, out, error), (-signal.SIGINT, b"", b""))
            self.assertEqual(list(pathlib.Path(folder).iterdir()), [])


if __name__ == "__main__":
    unittest.main()
