"""Lists of names: the export lists for ELF and Windows, and the names as C++ macro calls."""

import array_header
from catalogue import by_reference


def exported_names(families):
    return sorted(routine.export for family in by_reference(families) for routine in family.routines)


def _version_script(names):
    listed = "".join(f"        {name};\n" for name in names)
    return f"{{\n    global:\n{listed}    local:\n        *;\n}};\n"


def _module_definition(library, names):
    listed = "".join(f"    {name}\n" for name in names)
    return f"LIBRARY {library}\nEXPORTS\n{listed}"


def version_script(families):
    return _version_script(exported_names(families))


def module_definition(families):
    return _module_definition("quorvel", exported_names(families))


def array_version_script(families):
    return _version_script(array_header.names(families))


def array_module_definition(families):
    return _module_definition("quorvel_arrays", array_header.names(families))


def macro_calls(families):
    return "".join(f"QUORVEL_ROUTINE({name})\n" for name in exported_names(families))


def wasm_exports(families):
    """Options of the linker. Whole arrays go through quorvel_call, which needs no name of its own for each routine."""
    arrays = [name for name in array_header.names(families) if name.startswith("quorvel_climate_file_")]
    generic = ["quorvel_call", "quorvel_find_routine", "malloc", "free"]
    return "".join(f"-Wl,--export={name}\n" for name in [*exported_names(families), *arrays, *generic])
