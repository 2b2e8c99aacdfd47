"""Makes from the scripts of this folder: notebooks, or the pictures and the page of the documentation.

    python make.py notebooks FOLDER
    python make.py pages DOCS
"""

import io
import json
import re
import runpy
import shutil
import sys
from pathlib import Path

HERE = Path(__file__).parent
SHARED = ("style.py", "weather_year.py")
SCRIPTS = sorted(set(HERE.glob("*.py")) - {HERE / name for name in (*SHARED, "make.py")})
PICTURE = re.compile(r"\*\*The picture\*\* (.*?[.])(?:\s|$)", re.DOTALL)


def cells(script):
    """Pairs of kind and text: the parts that lines with # %% begin; text without its comment marks."""
    for part in re.split(r"^# %%", script.read_text(encoding="utf-8"), flags=re.MULTILINE)[1:]:
        kind, text = part.split("\n", 1)
        if "[markdown]" in kind:
            yield "markdown", re.sub(r"^# ?", "", text.strip(), flags=re.MULTILINE)
        else:
            yield "code", text.strip()


def notebook(script):
    """The script as a notebook of version 4.5, without results."""
    made = [{"cell_type": kind, "id": f"cell-{number}", "metadata": {}, "source": text}
            | ({"outputs": [], "execution_count": None} if kind == "code" else {})
            for number, (kind, text) in enumerate(cells(script))]
    kernel = {"display_name": "Python 3", "language": "python", "name": "python3"}
    return {"cells": made, "metadata": {"kernelspec": kernel}, "nbformat": 4, "nbformat_minor": 5}


def make_notebooks(folder):
    """With the modules that they share beside them."""
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    for name in SHARED:
        shutil.copy(HERE / name, folder)
    for script in SCRIPTS:
        text = json.dumps(notebook(script), indent=1, ensure_ascii=False)
        (folder / f"{script.stem}.ipynb").write_text(text + "\n", encoding="utf-8")


def page():
    """docs/gallery.md, of titles and the sentences that say what the pictures show."""
    lines = ["# Gallery", "",
             "Questions of practice, each worked out by a short script of `bindings/python/gallery/` with the Python",
             "package and Matplotlib. `python make.py notebooks FOLDER` there makes notebooks of them. Where a year of",
             "weather is needed it is synthetic, of no real place; any EPW file does instead."]
    for script in SCRIPTS:
        text = next(cells(script))[1]
        title, shows = text.splitlines()[0][2:], " ".join(PICTURE.search(text)[1].split())
        lines += ["", f"## {title}", "", f"[`{script.name}`](../bindings/python/gallery/{script.name}) {shows}", "",
                  f"![{title}](images/gallery/{script.stem}.png)"]
    return "\n".join(lines) + "\n"


def make_pages(docs):
    """Pictures of 256 colours, which keeps the page light."""
    import matplotlib

    matplotlib.use("Agg")
    import matplotlib.pyplot as plt
    from PIL import Image

    plt.show = lambda: None
    images = Path(docs) / "images" / "gallery"
    images.mkdir(parents=True, exist_ok=True)
    for script in SCRIPTS:
        drawn = io.BytesIO()
        runpy.run_path(str(script))["figure"].savefig(drawn, dpi=110)
        plt.close("all")
        picture = Image.open(drawn).convert("RGB").quantize(256, Image.Quantize.MAXCOVERAGE, dither=Image.Dither.NONE)
        picture.save(images / f"{script.stem}.png", optimize=True)
    (Path(docs) / "gallery.md").write_text(page(), encoding="utf-8")


if __name__ == "__main__":
    {"notebooks": make_notebooks, "pages": make_pages}[sys.argv[1]](sys.argv[2])
