"""What is wrong with a call: the text, and the error that the cell shows."""

import struct

NOT_A_NUMBER, OUTSIDE, UNFIT, MISSING = 519, 502, 504, 32767  # #VALUE!, Err:502, Err:504, #N/A


def error(code):
    """Calc keeps an error in a cell as a not-a-number that carries its code."""
    return struct.unpack("<d", struct.pack("<Q", 0x7FF8000000000000 | code))[0]


class Fault(Exception):
    def __init__(self, code, text):
        super().__init__(text)
        self.code, self.text = code, text

    @property
    def cell(self):
        return error(self.code)
