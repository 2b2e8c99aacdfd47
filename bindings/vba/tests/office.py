"""LibreOffice without a window, which runs the module in its Basic. That cannot call a library on Linux; so the
declarations are replaced by functions that call here, where the library is."""

import ctypes
import re
import subprocess
import time
from contextlib import contextmanager

import uno
import unohelper
from com.sun.star.connection import NoConnectException
from com.sun.star.sheet import XFunctionAccess

NUMBERS = {"Single": ctypes.c_float, "Double": ctypes.c_double, "Long": ctypes.c_int32, "LongPtr": ctypes.c_int64,
           "Byte": ctypes.c_uint8}
DECLARED = re.compile(r'Private Declare PtrSafe (Function|Sub) (\w+) Lib "(quorvel\w*)\.dll" \(([^)]*)\)(?: As (\w+))?')
SUPPORT = """
Public Sub UseBridge(ByVal given As Object)
    Set Bridge = given
End Sub

Public Sub UseUnchecked(ByVal given As Boolean)
    QuorvelUnchecked = given
End Sub

' What a range of two columns holds, which cannot be handed in: of numbers row by row.
Private Function Tabled(ByVal numbers As Variant) As Variant
    Dim table As Variant, k As Long
    ReDim table(1 To (UBound(numbers) + 1) \\ 2, 1 To 2)
    For k = 0 To UBound(numbers)
        table(k \\ 2 + 1, k Mod 2 + 1) = numbers(k)
    Next k
    Tabled = table
End Function

Public Function PressuresOfTable(ByVal temperatures As Variant) As Variant
    PressuresOfTable = PsychroVapourPressure(Tabled(temperatures), 50)
End Function

Public Function OverlapOfTables(ByVal a As Variant, ByVal b As Variant) As Variant
    OverlapOfTables = GeometryOverlapArea(Tabled(a), Tabled(b))
End Function

' In place of CVErr, whose values do not come out.
Private Function Shown(ByVal fault As Long) As String
    Shown = "#" & fault
End Function

Private Sub PutBack(ByRef place As Variant, ByVal after As Variant)
    Dim k As Long
    If IsArray(place) Then
        For k = 0 To UBound(place)
            place(k) = after(k)
        Next k
    Else
        place = after
    End If
End Sub
"""


def unfolded(text):
    return re.sub(r" _\n *", " ", text).replace("( ", "(")


class Declarations(unohelper.Base, XFunctionAccess):
    """What the module declares, on the libraries of a build."""

    def __init__(self, text, libraries):
        self.known = {name: (library, [tuple(parameter.split()) for parameter in parameters.split(", ")], result)
                      for _, name, library, parameters, result in DECLARED.findall(unfolded(text))}
        self.libraries, self.called = libraries, set()

    def callFunction(self, name, given):
        library, parameters, result = self.known[name]
        function = getattr(self.libraries[library], name)
        function.restype = NUMBERS[result] if result else None
        places = [self._place(NUMBERS[kind], value) for (_, _, _, kind), value in zip(parameters, given)]
        passed = [ctypes.byref(place) if way == "ByRef" else place for (way, *_), place in zip(parameters, places)]
        value = function(*passed)
        self.called.add(name)
        return (*(tuple(place) if hasattr(place, "__len__") else place.value for place in places), value)

    @staticmethod
    def _place(kind, value):
        if isinstance(value, uno.ByteSequence):
            value = tuple(value.value)
        return (kind * len(value))(*value) if isinstance(value, tuple) else kind(value)

    def instead(self, text):
        """The module with functions in place of the declarations; these take whole arrays."""
        body = DECLARED.sub("", unfolded(text))
        for name, (_, parameters, result) in self.known.items():
            body = re.sub(rf"(?m)^(.*\b{name}\b)(.*)$", lambda line: line[1] + line[2].replace("(0)", ""), body)
            body += self._function(name, [parameter[1] for parameter in parameters], result)
        body = body.replace("Public QuorvelUnchecked", "Global QuorvelUnchecked")  # kept from call to call
        body = body.replace("CVErr(", "Shown(")
        body = re.sub(r"Private Declare PtrSafe.*|Attribute .*", "", body)
        return f"Option VBASupport 1\nGlobal Bridge As Object\n{body}{SUPPORT}"

    @staticmethod
    def _function(name, parameters, result):
        kind = "Function" if result else "Sub"
        back = "".join(f"    PutBack {each}, after({k})\n" for k, each in enumerate(parameters))
        value = f"    {name} = after({len(parameters)})\n" if result else ""
        return (f"\nPrivate {kind} {name}({', '.join(f'ByRef {each} As Variant' for each in parameters)})"
                f"{f' As {result}' if result else ''}\n    Dim after As Variant\n"
                f'    after = Bridge.callFunction("{name}", Array({", ".join(parameters)}))\n{back}{value}End {kind}\n')


def _connected(local):
    resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
    for _ in range(200):
        try:
            return resolver.resolve("uno:pipe,name=quorvel_vba;urp;StarOffice.ComponentContext")
        except NoConnectException:
            time.sleep(0.3)
    raise RuntimeError("LibreOffice does not answer")


@contextmanager
def module(text, profile):
    """A function that calls one of the module by its name."""
    options = [f"-env:UserInstallation={profile.resolve().as_uri()}", "--headless", "--norestore", "--nologo"]
    process = subprocess.Popen(["soffice", *options, "--accept=pipe,name=quorvel_vba;urp;"], stderr=subprocess.DEVNULL)
    try:
        context = _connected(uno.getComponentContext())
        libraries = context.ServiceManager.createInstanceWithContext(
            "com.sun.star.script.ApplicationScriptLibraryContainer", context)
        libraries.createLibrary("Quorvel")
        libraries.getByName("Quorvel").insertByName("Cells", text)
        factory = context.getValueByName("/singletons/com.sun.star.script.provider.theMasterScriptProviderFactory")
        provider = factory.createScriptProvider("")

        def call(name, *given):
            address = f"vnd.sun.star.script:Quorvel.Cells.{name}?language=Basic&location=application"
            return provider.getScript(address).invoke(given, (), ())[0]

        yield call
        context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context).terminate()
    finally:
        process.terminate()
        process.wait()
