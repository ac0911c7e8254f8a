"""The machine that is measured on."""

from pathlib import Path


def machine():
    """The processor by its own name, where the system tells it."""
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return "unnamed processor"
