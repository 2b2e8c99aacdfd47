"""The files of the tree that are written by programs, and what writes them. Needs Debian's python3-mpmath."""

import sys
from pathlib import Path

import array_header
import cpp_headers
import cpp_statuses
import elementary_tables
import header
import incidence_bands
from languages import (calc_binding, clipping_statuses, csharp_binding, fortran_binding, javascript_binding, pascal_binding,
                       python_package, r_binding, rust_binding, vba_binding)

ROOT = Path(__file__).parents[1]
sys.path.insert(0, str(ROOT / "data" / "bands"))
import make_bands  # noqa: E402


def texts(families):
    glass = ROOT / "src/glazing/incidence_bands.h"
    return {
        ROOT / "include/quorvel.h": header.render(families),
        ROOT / "include/quorvel_arrays.h": array_header.header(families),
        **{ROOT / "include/quorvel" / name: text for name, text in cpp_headers.files(families).items()},
        **{ROOT / "bindings/python/quorvel" / name: text for name, text in python_package.files(families).items()},
        **{ROOT / "bindings/javascript" / name: text for name, text in javascript_binding.files(families).items()},
        **{ROOT / "bindings/csharp/Quorvel" / name: text for name, text in csharp_binding.files(families).items()},
        ROOT / "bindings/vba/quorvel.bas": vba_binding.render(families),
        **{ROOT / "bindings/fortran/src" / name: text for name, text in fortran_binding.files(families).items()},
        **{ROOT / "bindings/pascal/src" / name: text for name, text in pascal_binding.files(families).items()},
        **{ROOT / "bindings/rust" / name: text for name, text in rust_binding.files(families).items()},
        **{ROOT / "bindings/calc/addin" / name: text for name, text in calc_binding.files(families).items()},
        **{ROOT / "bindings/r/quorvel" / name: text for name, text in r_binding.files(families).items()},
        **{ROOT / name: text for name, text in clipping_statuses.files(families).items()},
        ROOT / "include/quorvel/clipping_status.hpp": cpp_statuses.public(families),
        ROOT / "src/geometry/clipping/status.h": cpp_statuses.core(families),
        ROOT / "src/math/tables.h": elementary_tables.render(),
        glass: incidence_bands.render(glass.read_text(encoding="utf-8")),
        ROOT / "data/bands/bands.csv": make_bands.table_text(),
    }
