"""Documentation comments of the C# binding."""

import re
from xml.sax.saxutils import escape

from binding_model import camel, lower_camel
from languages.csharp_model import qualified


class Docs:
    """Texts of the catalogue as comments, with the names of the binding in place of those of the catalogue."""

    def __init__(self, calls):
        self._exported = {call.routine.export: qualified(call) for call in calls if call.routine.export}
        self._methods = {call.name for call in calls}

    def text(self, text):
        text = re.sub(r"\b[A-Z][A-Z0-9]{3,8}\b", self._of_exported, escape(text))
        return re.sub(r"\b[a-z]\w*_\w+\b", self._of_name, text)

    def _of_exported(self, found):
        return f"<c>{self._exported[found[0]]}</c>" if found[0] in self._exported else found[0]

    def _of_name(self, found):
        return camel(found[0]) if found[0] in self._methods else lower_camel(found[0])

    def tag(self, name, text, attribute=""):
        text = self.text(text)
        closed = text if text.endswith((".", ")", ":")) else f"{text}."
        return f"/// <{name}{attribute}>{closed[0].upper()}{closed[1:]}</{name}>"

    def summary(self, text):
        return self.tag("summary", text)

    def method(self, call):
        """Of a checked method for one element."""
        yield self.summary(call.routine.summary)
        yield from self._parameters(call)
        if not call.structure:
            yield self.tag("returns", call.results[0].sentence)
        yield '/// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>'
        yield "/// <remarks>"
        yield from (f"/// <para>{self.text(remark)}</para>" for remark in call.remarks)
        if call.routine.export:
            yield f"/// <para>The bits of {call.routine.export} in quorvel.h.</para>"
        yield "/// </remarks>"

    def _parameters(self, call):
        for parameter in call.parameters:
            meaning = parameter.arg.meaning if parameter.selector else parameter.sentence
            yield self.tag("param", meaning, f' name="{lower_camel(parameter.name)}"')

    def structure(self, call):
        return f"/// <summary>What <c>{qualified(call)}</c> returns.</summary>"

    def field(self, result):
        return self.summary(result.sentence)
