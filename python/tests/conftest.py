"""What the tests share."""

import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]


@pytest.fixture(scope="session")
def root() -> Path:
    """The folder of the repository, or of the sdist."""
    return ROOT


@pytest.fixture(scope="session")
def description() -> dict:
    """What the core says of all tests."""
    import json

    from kelpower import _core

    return json.loads(_core.describe())


def pytest_configure() -> None:
    """Make the generators importable where they are."""
    sys.path.insert(0, str(ROOT / "tools" / "python"))
