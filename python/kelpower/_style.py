"""The look of the charts: that of the program's, readable in grey and with all kinds of colour vision."""

from __future__ import annotations

from collections.abc import Iterable, Sequence
from typing import TYPE_CHECKING, Any

if TYPE_CHECKING:
    from matplotlib.axes import Axes

# Colours of Okabe and Ito, each with dashes of its own.
COLOURS = ("#0072b2", "#d55e00", "#009e73", "#cc79a7", "#333333", "#e69f00")
DASHES: tuple[Any, ...] = (
    "-",
    (0, (5, 3)),
    (0, (7, 2.5, 1.5, 2.5)),
    (0, (1.2, 1.8)),
    (0, (6, 2, 1, 2, 1, 2)),
    (0, (9, 3)),
)

# Of the levels of power, in their order.
LEVEL_DASHES: tuple[Any, ...] = ((0, (1.2, 2.5)), "-", (0, (5, 3)), (0, (7, 2.5, 1.5, 2.5)))

SHADES = ((0, "#f7fbff"), (0.5, "#c6dbef"), (0.8, "#9ecae1"), (1, "#5a9bcb"))

LINE = 1.8
MARK: dict[str, Any] = {"marker": "o", "color": "#b03a2e", "markersize": 6, "linestyle": "none", "zorder": 5}
FRAME = "#555555"
GRID = "#dddddd"
SMALL = "#444444"


def line_style(index: int) -> dict[str, Any]:
    """How a line is drawn. After six lines the colours meet other dashes."""
    turn = index // len(COLOURS)
    return {
        "color": COLOURS[index % len(COLOURS)],
        "linestyle": DASHES[(index + turn) % len(DASHES)],
        "linewidth": LINE,
    }


def needed(name: str) -> ImportError:
    """The error of a machine without what is needed for pictures."""
    return ImportError(f'Pictures need {name}, which is not installed: pip install "kelpower[plot]".', name=name)


def axes_or_new(ax: Axes | None) -> Axes:
    """The axes given, or those of a new figure."""
    if ax is not None:
        return ax
    try:
        from matplotlib import pyplot
    except ImportError as error:
        raise needed("matplotlib") from error
    from matplotlib.layout_engine import ConstrainedLayoutEngine

    _, new = pyplot.subplots(figsize=(7.5, 5.3), layout=ConstrainedLayoutEngine(w_pad=0.12, h_pad=0.08))
    return new


def frame(ax: Axes) -> None:
    """Lines at the left and below, and a light grid behind the curves."""
    for side in ("top", "right"):
        ax.spines[side].set_visible(False)
    for side in ("left", "bottom"):
        ax.spines[side].set_color(FRAME)
    ax.tick_params(colors=FRAME)
    ax.grid(True, color=GRID, linewidth=0.8)
    ax.set_axisbelow(True)


def values_axis(ax: Axes, quantity: str) -> None:
    """Powers from 0 to 1 with a line at the usual target; other values from 0 on."""
    if quantity != "power":
        ax.set_ylim(bottom=0)
        return
    ax.set_ylim(0, 1)
    ax.set_yticks([0, 0.2, 0.4, 0.6, 0.8, 1], labels=["0", "0.2", "0.4", "0.6", "0.8", "1"])
    ax.axhline(0.8, color="#999999", linewidth=0.9, zorder=1)


def titles(ax: Axes, title: str, pieces: Sequence[str], further: Iterable[str] = ()) -> None:
    """A title above smaller lines of what is held fixed."""
    size = _title_size()
    small = 0.75 * size
    lines = [*_lines(pieces, _characters(ax, small)), *(line for line in further if line)]
    for i, line in enumerate(reversed(lines)):
        place = (0, 4 + 1.25 * small * i)
        ax.annotate(
            line,
            (0.5, 1),
            xycoords="axes fraction",
            xytext=place,
            textcoords="offset points",
            ha="center",
            va="bottom",
            fontsize=small,
            color=SMALL,
            annotation_clip=False,
        )
    ax.set_title(title, pad=6 + 1.25 * small * len(lines))


def _title_size() -> float:
    """The size of titles in points, which the settings may say in words."""
    from matplotlib import rcParams
    from matplotlib.font_manager import FontProperties

    return float(FontProperties(size=rcParams["axes.titlesize"]).get_size_in_points())


def _characters(ax: Axes, size: float) -> int:
    """How many characters fit above the axes."""
    width = 72 * ax.bbox.width / ax.figure.dpi
    return max(24, int(width / (0.52 * size)))


def _lines(pieces: Sequence[str], characters: int) -> list[str]:
    lines: list[str] = []
    for piece in pieces:
        if lines and len(lines[-1]) + 2 + len(piece) <= characters:
            lines[-1] += "; " + piece
        else:
            lines.append(piece)
    return lines


def key(ax: Axes, is_ours: bool) -> None:
    """The key: below the axes in a figure of ours, and where there is room in axes of others."""
    if not is_ours:
        ax.legend(loc="best", handlelength=3, fontsize="small", framealpha=0.9, edgecolor=GRID)
        return
    lines, labels = ax.get_legend_handles_labels()
    ax.figure.legend(
        lines, labels, loc="outside lower center", ncols=min(len(labels), 5), frameon=False, handlelength=3
    )
