"""Quorvel in the cells of LibreOffice Calc: the component. The methods, which interface XFunctions names, hand over to
the package quorvel_calc; what passes for a bad argument comes back as the error of a cell, never as an exception."""

import os

import quorvel_calc
import uno
import unohelper
from com.sun.star.lang import XServiceInfo
from org.quorvel import XFunctions

IMPLEMENTATION, SERVICE = "org.quorvel.FunctionsImplementation", "org.quorvel.Functions"


def folder_of(document):
    """Empty for a document that has not been saved."""
    return os.path.dirname(uno.fileUrlToSystemPath(document.URL)) if document.URL.startswith("file:") else ""


def plain_name(name):
    return name.strip().lower()


class Functions(unohelper.Base, XFunctions, XServiceInfo):
    def __init__(self, context):
        pass

    def clip(self, *cells):
        return quorvel_calc.table("clip", cells)

    def quorvelWhy(self, document, name, cells):
        return quorvel_calc.why(plain_name(name), cells, folder_of(document))

    def quorvelUnchecked(self, document, name, cells):
        return quorvel_calc.table(plain_name(name), cells, folder_of(document), checked=False)

    def getImplementationName(self):
        return IMPLEMENTATION

    def supportsService(self, name):
        return name == SERVICE

    def getSupportedServiceNames(self):
        return (SERVICE,)


def of_file(name):
    return lambda self, document, *cells: quorvel_calc.table(name, cells, folder_of(document))


def of_numbers(name):
    return lambda self, *cells: quorvel_calc.table(name, cells)


for routine in quorvel_calc.ROUTINES.values():
    setattr(Functions, routine.method, (of_file if routine.of_file else of_numbers)(routine.name))

g_ImplementationHelper = unohelper.ImplementationHelper()
g_ImplementationHelper.addImplementation(Functions, IMPLEMENTATION, (SERVICE,))
