"""An office without a window, with the add-in, and its sheets."""

import subprocess
import time
from pathlib import Path

import uno
import unohelper
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.lang import DisposedException
from com.sun.star.task import XInteractionHandler
from com.sun.star.ucb import XCommandEnvironment


def properties(**values):
    return tuple(PropertyValue(Name=name, Value=value) for name, value in values.items())


class Agree(unohelper.Base, XCommandEnvironment, XInteractionHandler):
    """The answer to whether the add-in may be installed."""

    def getInteractionHandler(self):
        return self

    def getProgressHandler(self):
        return None

    def handle(self, request):
        approve = uno.getTypeByName("com.sun.star.task.XInteractionApprove")
        for continuation in request.getContinuations():
            if continuation.queryInterface(approve):
                continuation.select()


class Office:
    def __init__(self, folder, addin):
        # Of its own, beside which other offices of this machine may run.
        pipe = f"quorvel-{time.time_ns()}"
        self.process = subprocess.Popen(
            ["soffice", "--headless", "--norestore", "--nologo", f"-env:UserInstallation={Path(folder, 'profile').as_uri()}",
             f"--accept=pipe,name={pipe};urp;"], stderr=subprocess.DEVNULL)
        self.context = self._connected(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
        extensions = self.context.getValueByName("/singletons/com.sun.star.deployment.ExtensionManager")
        extensions.addExtension(Path(addin).as_uri(), (), "user", None, Agree())
        self.desktop = self.service("com.sun.star.frame.Desktop")

    def _connected(self, address):
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
        for _ in range(300):
            try:
                return resolver.resolve(address)
            except NoConnectException:
                time.sleep(0.2)
        self.process.terminate()
        raise TimeoutError("the office does not answer")

    def service(self, name):
        return self.context.ServiceManager.createInstanceWithContext(name, self.context)

    def document(self, url="private:factory/scalc"):
        return self.desktop.loadComponentFromURL(url, "_blank", 0, properties(Hidden=True))

    def close(self):
        try:
            self.desktop.terminate()
        except DisposedException:
            pass  # it was quicker than its answer
        self.process.wait(60)


def shown(sheet, column, row):
    """What a cell holds: a number, a text, or its error as Calc shows it."""
    cell = sheet.getCellByPosition(column, row)
    if cell.getError():
        return cell.String
    return cell.String if cell.FormulaResultType2 == 2 else cell.Value  # FormulaResult.STRING is 2


def block(sheet, row, height, width, column=0):
    return [[shown(sheet, column + x, row + y) for x in range(width)] for y in range(height)]
