"""The functions of the add-in, for tuples of rows of cells: what Calc passes and takes."""

from quorvel_calc.clipping import clip
from quorvel_calc.evaluation import Evaluation
from quorvel_calc.faults import UNFIT, Fault
from quorvel_calc.routines import ROUTINES


def table(name, cells, folder="", checked=True):
    """The cells that a function gives, errors among them. A relative name of a file counts from the folder."""
    try:
        return clip(cells) if name == "clip" else _evaluation(name, cells, folder, checked).table()
    except Fault as fault:
        return ((fault.cell,),)


def why(name, cells, folder=""):
    """For each element of the call what is wrong with it; an empty text for nothing."""
    try:
        if name == "clip":
            clip(cells)
            return (("",),)
        evaluation = _evaluation(name, cells, folder, True)
        evaluation.table()
        return evaluation.whys()
    except Fault as fault:
        return ((fault.text,),)


def _evaluation(name, cells, folder, checked):
    if name not in ROUTINES:
        raise Fault(UNFIT, f"there is no function {name}")
    return Evaluation(ROUTINES[name], cells, checked, folder)
