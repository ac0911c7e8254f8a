"""Charts with matplotlib."""

from __future__ import annotations

from typing import TYPE_CHECKING, Literal

import numpy as np

from . import _style
from ._curve import Curve, Curves, Surface

if TYPE_CHECKING:
    from matplotlib.axes import Axes

    from ._curve import Chart, Floats
    from ._densities import Densities


def draw(chart: Chart, ax: Axes | None = None) -> Axes:
    """Draw a chart.

    Parameters
    ----------
    chart : Curve, Curves or Surface
        What `curve` gave.
    ax : matplotlib.axes.Axes, optional
        Where to draw; a new figure without it.

    Returns
    -------
    matplotlib.axes.Axes
        What was drawn on.

    """
    axes = _style.axes_or_new(ax)
    if isinstance(chart, Surface):
        _draw_surface(chart, axes, ax is None)
    else:
        _draw_curves(tuple(chart) if isinstance(chart, Curves) else (chart,), axes, ax is None)
    return axes


def _draw_curves(curves: tuple[Curve, ...], ax: Axes, is_ours: bool) -> None:
    first = curves[0]
    _style.frame(ax)
    for i, curve in enumerate(curves):
        ax.plot(curve.x, curve.values, label=curve.label if len(curves) > 1 else "_", **_style.line_style(i))
    _mark_designs(curves, ax)
    _style.values_axis(ax, first.quantity)
    ax.set_xlim(first.x[0], first.x[-1])
    ax.set_xlabel(first.axis.title)
    ax.set_ylabel(first.value_title)
    _style.titles(ax, first.title, first.fixed)
    if len(curves) > 1 or first.design is not None:
        _style.key(ax, is_ours)


def _mark_designs(curves: tuple[Curve, ...], ax: Axes) -> None:
    designs = [curve.design for curve in curves if curve.design is not None]
    if not designs:
        return
    label = f"design: {designs[0].text}" if len(curves) == 1 else "designs"
    places = [mark.x for mark in designs], [mark.values for mark in designs]
    ax.plot(*places, label=label, clip_on=False, **_style.MARK)


def _draw_surface(surface: Surface, ax: Axes, is_ours: bool) -> None:
    ax.grid(False)
    _shade(surface, ax)
    for i, level in enumerate(surface.levels):
        if not level.lines:
            continue
        gap = [np.array([np.nan])]
        x, y = (np.concatenate([part for line in level.lines for part in (line[k], *gap)]) for k in (0, 1))
        dashes = _style.LEVEL_DASHES[i % len(_style.LEVEL_DASHES)]
        ax.plot(x, y, label=f"power {level.power:g}", color="#222222", linewidth=1.5, linestyle=dashes)
    if surface.design is not None and surface.design.y is not None:
        ax.plot([surface.design.x], [surface.design.y], label="design", clip_on=False, **_style.MARK)
    _frame_surface(surface, ax)
    _style.key(ax, is_ours)


def _shade(surface: Surface, ax: Axes) -> None:
    from matplotlib.colors import LinearSegmentedColormap

    shades = LinearSegmentedColormap.from_list("power", list(_style.SHADES))
    shading: Literal["gouraud", "nearest"] = "gouraud" if np.isfinite(surface.power).all() else "nearest"
    mesh = ax.pcolormesh(
        surface.x, surface.y, surface.power.T, cmap=shades, vmin=0, vmax=1, shading=shading, rasterized=True
    )
    bar = ax.figure.colorbar(mesh, ax=ax, label="power")
    bar.ax.tick_params(colors=_style.FRAME)
    bar.outline.set_edgecolor(_style.FRAME)


def _frame_surface(surface: Surface, ax: Axes) -> None:
    for spine in ax.spines.values():
        spine.set_color(_style.FRAME)
    ax.tick_params(colors=_style.FRAME)
    ax.set_xlim(surface.x[0], surface.x[-1])
    ax.set_ylim(surface.y[0], surface.y[-1])
    ax.set_xlabel(surface.axes[0].title)
    ax.set_ylabel(surface.axes[1].title)
    further = [f"design: {surface.design}" if surface.design else "", surface.note or ""]
    _style.titles(ax, surface.title, surface.fixed, further)


_STATISTICS = {"t": "t statistic", "F": "F statistic", "normal": "test statistic", "count": "number of successes"}


def draw_densities(densities: Densities, ax: Axes | None = None) -> Axes:
    """Draw the distributions of a test statistic without and with the effect, and where the test rejects.

    Parameters
    ----------
    densities : Densities
        What `Result.densities` gave.
    ax : matplotlib.axes.Axes, optional
        Where to draw; a new figure without it.

    Returns
    -------
    matplotlib.axes.Axes
        What was drawn on.

    """
    axes = _style.axes_or_new(ax)
    _style.frame(axes)
    _draw_density(densities, densities.without_effect, f"without the effect (level {densities.level:.3g})", 0, axes)
    _draw_density(densities, densities.with_effect, f"with the effect (power {densities.power:.2f})", 1, axes)
    if densities.statistic != "count":
        for end in (densities.rejects_to, densities.rejects_from):
            if end is not None:
                axes.axvline(end, color="#222222", linewidth=1)
    # Axes of others have the key inside, above the densities.
    highest = max(densities.without_effect.max(), densities.with_effect.max())
    axes.set_ylim(0, highest * (1.05 if ax is None else 1.3))
    axes.set_xlim(densities.x[0], densities.x[-1])
    axes.set_xlabel(_STATISTICS[densities.statistic])
    axes.set_ylabel("probability" if densities.statistic == "count" else "density")
    _style.titles(axes, densities.title, [])
    _style.key(axes, ax is None)
    return axes


def _draw_density(densities: Densities, heights: Floats, label: str, index: int, ax: Axes) -> None:
    """A density with the area where the test rejects; of counts, bars side by side."""
    from matplotlib.colors import to_rgba

    style = _style.line_style(index)
    if densities.statistic == "count":
        colours = [to_rgba(style["color"], 0.9 if rejects else 0.3) for rejects in densities.rejects]
        places = densities.x + (0.4 * index - 0.2)
        ax.bar(places, heights, 0.4, label=label, color=colours)
        return
    ax.plot(densities.x, heights, label=label, **style)
    # The areas end where the test rejects, and not at the points beside it.
    ends = [end for end in (densities.rejects_to, densities.rejects_from) if end is not None]
    x = np.sort(np.append(densities.x, ends))
    rejects = np.zeros(len(x), dtype=bool)
    if densities.rejects_to is not None:
        rejects |= x <= densities.rejects_to
    if densities.rejects_from is not None:
        rejects |= x >= densities.rejects_from
    below = np.interp(x, densities.x, heights)
    ax.fill_between(x, below, where=rejects.tolist(), color=style["color"], alpha=0.25, linewidth=0)
