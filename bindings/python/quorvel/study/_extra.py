"""The libraries that only studies need."""

import importlib

__all__ = ["needed"]


def needed(name):
    """That library, or an error that says how to get it."""
    try:
        return importlib.import_module(name)
    except ModuleNotFoundError as error:
        if error.name != name:
            raise
        text = f"studies need {name}, which the extra study of quorvel brings: pip install quorvel[study]"
        raise ModuleNotFoundError(text, name=name) from None
