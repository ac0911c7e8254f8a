"""The distributions of a test statistic."""

from __future__ import annotations

from collections.abc import Mapping
from dataclasses import dataclass
from typing import Any

import numpy as np
from numpy.typing import NDArray

Floats = NDArray[np.float64]


@dataclass(frozen=True, eq=False)
class Densities:
    """The distributions of a test statistic, for a picture of the test.

    Attributes
    ----------
    title : str
        The name of the test.
    statistic : {"t", "F", "normal", "count"}
        The kind of statistic. A normal one is in units of its standard deviation without the effect; a count is of
        successes and has probabilities in place of densities.
    x : numpy.ndarray
        Values of the statistic.
    without_effect, with_effect : numpy.ndarray
        The density at each ``x``.
    rejects_to, rejects_from : float or None
        The test rejects at ``rejects_to`` and below, and at ``rejects_from`` and above.
    level, power : float
        The areas there, without and with the effect.

    """

    title: str
    statistic: str
    x: Floats
    without_effect: Floats
    with_effect: Floats
    rejects_to: float | None
    rejects_from: float | None
    level: float
    power: float

    @property
    def rejects(self) -> NDArray[np.bool_]:
        """Whether the test rejects at each ``x``."""
        low = -np.inf if self.rejects_to is None else self.rejects_to
        high = np.inf if self.rejects_from is None else self.rejects_from
        return np.asarray((self.x <= low) | (self.x >= high))

    def __repr__(self) -> str:
        return f"<Densities of {self.title}: {self.statistic}, level {self.level:.4g}, power {self.power:.4g}>"


def densities_of(title: str, reply: Mapping[str, Any]) -> Densities:
    """The densities in a reply."""
    return Densities(
        title=title,
        statistic=reply["statistic"],
        x=np.array(reply["x"], dtype=np.float64),
        without_effect=np.array(reply["without"], dtype=np.float64),
        with_effect=np.array(reply["with"], dtype=np.float64),
        rejects_to=reply.get("rejects-to"),
        rejects_from=reply.get("rejects-from"),
        level=float(reply["level"]),
        power=float(reply["power"]),
    )
