"""Charts with matplotlib."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any

import numpy as np

from . import _style
from ._curve import Curve, Curves, Surface

if TYPE_CHECKING:
    from matplotlib.axes import Axes

    from ._curve import Chart


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
    _values_axis(ax, first.quantity)
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


def _values_axis(ax: Axes, quantity: str) -> None:
    """Powers from 0 to 1 with a line at the usual target; other values from 0 on."""
    if quantity != "power":
        ax.set_ylim(bottom=0)
        return
    ax.set_ylim(0, 1)
    ax.set_yticks(np.linspace(0, 1, 6))
    ax.axhline(0.8, color="#999999", linewidth=0.9, zorder=1)


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
    if surface.design is not None:
        ax.plot([surface.design.x], [surface.design.y], label="design", clip_on=False, **_style.MARK)
    _frame_surface(surface, ax)
    _style.key(ax, is_ours, columns=5)


def _shade(surface: Surface, ax: Axes) -> None:
    from matplotlib.colors import LinearSegmentedColormap

    shades = LinearSegmentedColormap.from_list("power", list(_style.SHADES))
    shading = "gouraud" if np.isfinite(surface.power).all() else "nearest"
    mesh = ax.pcolormesh(
        surface.x, surface.y, surface.power.T, cmap=shades, vmin=0, vmax=1, shading=shading, rasterized=True
    )
    bar = ax.get_figure(root=True).colorbar(mesh, ax=ax, label="power")
    bar.ax.tick_params(colors=_style.FRAME)
    bar.outline.set_edgecolor(_style.FRAME)  # type: ignore[operator]


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


def draw_densities(title: str, densities: Any, ax: Axes | None = None) -> Axes:
    """Draw the distributions of a test statistic without and with the effect, and where the test rejects.

    Parameters
    ----------
    title : str
        The title of the picture.
    densities : dict
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
    x = densities["x"]
    is_count = densities["statistic"] == "count"
    rejects = (x <= densities.get("rejects_to", -np.inf)) | (x >= densities.get("rejects_from", np.inf))
    texts = {"without": f"without the effect (level {densities['level']:.3g})", "with": f"with it (power {densities['power']:.2f})"}
    for i, (name, text) in enumerate(texts.items()):
        style = _style.line_style(i)
        axes.plot(x, densities[name], label=text, drawstyle="steps-mid" if is_count else "default", **style)
        axes.fill_between(
            x, densities[name], where=rejects, step="mid" if is_count else None, color=style["color"], alpha=0.25, linewidth=0
        )
    ends = [densities[name] for name in ("rejects_to", "rejects_from") if name in densities]
    for place in ends:
        axes.axvline(place, color="#222222", linewidth=1, label="_")
    axes.set_xlim(x[0], x[-1])
    axes.set_ylim(bottom=0)
    axes.set_xlabel({"count": "number of successes", "normal": "test statistic"}.get(densities["statistic"], f"{densities['statistic']} statistic"))
    axes.set_ylabel("probability" if is_count else "density")
    _style.titles(axes, title, [])
    _style.key(axes, ax is None, columns=2)
    return axes
