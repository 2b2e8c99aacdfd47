"""The look of the gallery's pictures: for print and for all eyes, with names beside the lines instead of a key."""

import matplotlib.pyplot as plt

# Colours that stay apart for colour-blind readers (M. Okabe and K. Ito, 2008), and grey for what stands behind.
BLUE, ORANGE, GREEN, RED, SKY, GREY = "#0072B2", "#E69F00", "#009E73", "#D55E00", "#56B4E9", "#8a8a8a"
MONTHS = ["Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"]
MONTH_STARTS = [1, 32, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335]
"""Day of the year on which each month begins."""

plt.rcParams.update({
    "figure.figsize": (7, 4.2), "figure.dpi": 110, "figure.constrained_layout.use": True,
    "font.size": 9, "axes.titlesize": 10, "axes.titlelocation": "left",
    "axes.spines.top": False, "axes.spines.right": False, "axes.edgecolor": "#606060",
    "grid.color": "#e4e4e4", "grid.linewidth": 0.6, "lines.linewidth": 1.6, "image.cmap": "cividis",
})


def label(axes, x, y, text, colour="black", shift=(4, 0), **options):
    """Text beside the point (x, y), by a shift in points, on a white ground so that lines do not cross it."""
    options = {"va": "center", "ha": "left" if shift[0] >= 0 else "right"} | options
    return axes.annotate(text, (x, y), xytext=shift, textcoords="offset points", color=colour, annotation_clip=False,
                         bbox={"facecolor": "white", "edgecolor": "none", "pad": 0.5}, **options)


def months_along(axes):
    """An x axis of days of the year, with the names of the months where they begin."""
    axes.set_xticks(MONTH_STARTS, MONTHS, ha="left")
