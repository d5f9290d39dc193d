"""The charts of docs/measurements.md: a row for each operation, a dot for each library, on a scale of ratios."""
import matplotlib

matplotlib.use("svg")
matplotlib.rcParams.update({"svg.hashsalt": "quvex",  # the same file again
                            "font.family": "DejaVu Sans", "font.size": 10})
import matplotlib.pyplot as plot  # noqa: E402

# Colour, marker, size, order of drawing: a smaller dot in front of a larger one that it would share its place with.
STYLES = {
    "Quvex": ("#0b5cad", "o", 90, 2),
    "Quvex, built for size": ("#7db4e6", "o", 46, 3),
    "picolibc": ("#e08a2e", "D", 24, 5),
    "newlib": ("#8a8f98", "s", 34, 4),
}


def draw(path, title, subtitle, rows, ticks):
    """`rows`: label and {series: value}, from the top down; the value of Quvex stands beside its row."""
    figure, axes = plot.subplots(figsize=(9, 1.5 + 0.32 * len(rows)))
    for y, (label, values) in enumerate(rows):
        axes.plot([min(values.values()), max(values.values())], [y, y], color="#dfe3e8", linewidth=2.5, zorder=1)
        figure_of_row = f"{values['Quvex']:,.1f}".removesuffix(".0")
        axes.annotate(figure_of_row, (1.015, y), xycoords=("axes fraction", "data"), va="center",
                      color=STYLES["Quvex"][0], weight="bold")
    for name, (colour, marker, size, order) in STYLES.items():
        points = [(values[name], y) for y, (_, values) in enumerate(rows) if name in values]
        if points:
            axes.scatter(*zip(*points), c=colour, marker=marker, s=size, zorder=order, label=name, linewidths=0)
    axes.set_xscale("log", base=2)
    axes.set_xticks(ticks, [f"{tick:,}" for tick in ticks])
    axes.set_xlim(ticks[0], ticks[-1])
    axes.set_yticks(range(len(rows)), [label for label, _ in rows])
    axes.set_ylim(len(rows) - 0.4, -0.6)
    axes.grid(axis="x", color="#eceff2", zorder=0)
    axes.tick_params(length=0)
    axes.spines[:].set_visible(False)
    height = figure.get_figheight()
    figure.subplots_adjust(left=0.34, right=0.93, top=1 - 1.02 / height, bottom=0.35 / height)
    figure.text(0.02, 1 - 0.3 / height, title, size=14, weight="bold", color="#1c2430")
    figure.text(0.02, 1 - 0.56 / height, subtitle, color="#5b6470")
    axes.legend(loc="lower left", bbox_to_anchor=(-0.02, 1), ncols=4, frameon=False, handletextpad=0.1,
                columnspacing=1.4)
    figure.savefig(path, metadata={"Date": None, "Creator": None})
    plot.close(figure)


def flash(path, total, rows):
    """`rows`: operation, its counterpart, bytes of Quvex, newlib and picolibc."""
    rows = sorted(rows, key=lambda row: (row[2], row[0]))
    draw(path, "Flash: what an operation weighs",
         f"Bytes of code on a Cortex-M4, built for size: fewer is better. All fifty operations: {total:,} bytes.",
         [(f"{name}  ({other})", {"Quvex": ours, "newlib": newlib, "picolibc": picolibc})
          for name, other, ours, newlib, picolibc in rows], [8, 16, 32, 64, 128, 256, 512, 1024, 2048])


def speed(path, rows):
    """`rows`: case, cycles a unit of Quvex built for speed and for size, and {library: cycles a unit}."""
    rows = sorted(rows, key=lambda row: (row[1], row[0]))
    draw(path, "Speed: what a unit costs",
         "Modelled Cortex-M4 cycles for each further unit: fewer is better. newlib reads words, past the end too.",
         [(name, {"Quvex": fast, "Quvex, built for size": small, **others}) for name, fast, small, others in rows],
         [1, 2, 4, 8, 16, 32, 64, 128, 256])
