"""Lists of names: the export lists for ELF and Windows, and the names as C++ macro calls."""


def _names(families):
    return sorted(routine.export for family in families for routine in family.routines)


def version_script(families):
    names = "".join(f"        {name};\n" for name in _names(families))
    return f"{{\n    global:\n{names}    local:\n        *;\n}};\n"


def module_definition(families):
    names = "".join(f"    {name}\n" for name in _names(families))
    return f"LIBRARY quorvel\nEXPORTS\n{names}"


def macro_calls(families):
    return "".join(f"QUORVEL_ROUTINE({name})\n" for name in _names(families))
