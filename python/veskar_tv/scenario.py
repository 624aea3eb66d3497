"""Writes a scenario as a pytest test: each event becomes a line that a person could have written."""

import builtins
import json
import re

from .tv import PATIENCE

_ROUTING = {"signal_type_key", "signal_tvservice_key", "ui_param_ui_id", "ui_param_source_id"}
_RESULTS = {2: "closed", 3: "back"}
_WIDTH = 120
_INDENT = "    "


def _literal(value):
    return repr(value) if isinstance(value, bool) else json.dumps(value, ensure_ascii=False)


def _call(function, arguments):
    """The call in as many lines as it needs; those after the first begin below its first argument."""
    start = _INDENT + function + "("
    lines = [start]
    for index, argument in enumerate(arguments):
        piece = argument + ("," if index + 1 < len(arguments) else ")")
        if len(lines[-1]) + len(piece) + 1 > _WIDTH and lines[-1].strip() != function + "(":
            lines.append(" " * len(start) + piece)
        else:
            lines[-1] += piece if lines[-1].endswith("(") else " " + piece
    return "\n".join(line.rstrip() for line in lines)


def _text_or_number(text, texts, name, number):
    """The text of this number, from 1, where that says enough."""
    if 0 < number <= len(texts) and texts.count(texts[number - 1]) == 1:
        return f".{text} == {_literal(texts[number - 1])}"
    return f".{name} == {number}"


class Scenario:
    """Each method but the last two is called for one event, in their order; `pause` is the seconds before it."""

    def __init__(self, name, kinds):
        self.pause = 0
        self._name = re.sub(r"\W", "_", name.removeprefix("test_"))
        self._kinds = {kind["type"]: (name, kind["options"]) for name, kind in kinds.items()}
        self._lines = []
        self._keys = []
        self._shown = None
        self._asked = {}  # the variable and the request, by the call
        self._menus = {}
        self._used = {}
        self._count = {"requests": 0, "keys": 0}
        self._imports_refused = False

    def ask(self, values):
        call, request = values
        self._add(None)
        if self._lines and self._lines[-1].lstrip().startswith("assert"):
            self._lines.append("")  # another dialogue
        variable = self._variable(request)
        self._asked[call] = (variable, request)
        self._add(_call(f"{variable} = middleware.ask", self._arguments(request)))
        self._count["requests"] += 1

    def tell(self, values):
        arguments = self._arguments(values[1])
        if arguments[0] == _literal("close") and len(arguments) == 2:
            self._add(f"{_INDENT}middleware.close({arguments[1].removeprefix('ui_id=')})")
        else:
            self._add(_call("middleware.tell", arguments))
        self._count["requests"] += 1

    def openmenu(self, values):
        call, request = values
        self._menus[call] = request.get("menu_pos_key", "")

    def reply(self, values):
        call, body = values
        if call in self._menus:
            led_to = [{"task": task, "action": action} for task, action in body[0]]
            led_to += [{"menuPosition": position} for position in body[1]]
            self._add(f"{_INDENT}assert middleware.menu({_literal(self._menus[call])}) == {_literal(led_to)}")
            self._count["requests"] += 1
        elif call in self._asked:
            variable, request = self._asked.pop(call)
            patience = f"timeout={self.pause * 2:.0f}" if self.pause > PATIENCE / 2 else ""
            self._add(f"{_INDENT}assert {variable}.answer({patience}){self._outcome(request, *body[2:])}")

    def refusal(self, values):
        if values[0] in self._asked:
            variable, _ = self._asked.pop(values[0])
            self._imports_refused = True
            self._add(f"{_INDENT}with pytest.raises((NoAnswer, Refused)):\n{_INDENT * 2}{variable}.answer()")

    def key(self, name):
        self._finish_shown()
        self._keys.append(name)
        self._count["keys"] += 1

    def shown(self, values):
        self._add(None)
        self._shown = values

    def text(self, said):
        """Comes after `shown`: the title is expected where the screen says it."""
        if self._shown:
            ui_id, _, _, title = self._shown
            self._shown = None
            pattern = re.sub(r"([\\^$.|?*+()\[\]{}])", r"\\\1", title)
            if title and title in said:
                self._add(f"{_INDENT}viewer.expect({_literal(pattern)}, ui_id={ui_id})")
            else:
                self._add(f'{_INDENT}viewer.wait("shown", ui_id={ui_id})')

    def counts(self):
        return ", ".join(f"{number} {what}" for what, number in self._count.items())

    def program(self):
        self._add(None)
        fixtures = "middleware, viewer" if any("viewer." in line for line in self._lines) else "middleware"
        imports = "import pytest\nfrom veskar_tv import NoAnswer, Refused\n\n" if self._imports_refused else ""
        body = "\n".join(self._lines) or f"{_INDENT}pass"
        return f'"""Recorded by ./tv record."""\n\n{imports}\ndef test_{self._name}({fixtures}):\n{body}\n'

    def _add(self, line):
        """After the keys and the screen that came before it."""
        self._finish_shown()
        if self._keys:
            keys, self._keys = self._keys, []
            self._lines.append(_call("viewer.press", [_literal(key) for key in keys]))
        if line is not None:
            self._lines.append(line)

    def _finish_shown(self):
        if self._shown:
            self.text("")

    def _variable(self, request):
        name = self._kinds.get(request.get("signal_tvservice_key"), ("request", {}))[0].replace("-", "_")
        self._used[name] = self._used.get(name, 0) + 1
        if self._used[name] > 1:
            return f"{name}_{self._used[name]}"
        return name + "_" if hasattr(builtins, name) else name

    def _arguments(self, request):
        """Of `ask` or `tell`: as the kind's options where these can say it, otherwise key by key."""
        options = self._options(request)
        if options is None:
            words = [f"{key}[]={one}" if isinstance(value, list) else f"{key}={one}" for key, value in request.items()
                     for one in (value if isinstance(value, list) else [value])]
            return [_literal("raw"), *map(_literal, words)]
        return options

    def _options(self, request):
        if request.get("signal_type_key") == "sequence" and len(request) == 1:
            return [_literal("sequence")]
        kind = request.get("signal_tvservice_key")
        name, options = ("close", {}) if kind == "ui_type_close" else self._kinds.get(kind, (None, {}))
        keys = {option["key"] for option in options.values()}
        if name is None or not _ROUTING <= request.keys() <= _ROUTING | keys:
            return None
        arguments = {"ui_id": request["ui_param_ui_id"], "source_id": request["ui_param_source_id"]}
        if not all(re.fullmatch(r"0|-?[1-9]\d*", number) for number in arguments.values()):
            return None
        arguments = {key: int(value) for key, value in arguments.items() if (key, value) != ("source_id", "255")}
        for option, field in options.items():
            value = self._value(field, request.get(field["key"]))
            if value is None:
                return None
            if value != self._unset(field):
                arguments[option.replace("-", "_")] = value
        return [_literal(name), *(f"{option}={_literal(value)}" for option, value in arguments.items())]

    @staticmethod
    def _unset(field):
        return {"text": "", "number": field["default"], "flag": False, "list": []}[field["encoding"]]

    def _value(self, field, value):
        """As a Python value; None where the option cannot say it."""
        if value is None:
            return self._unset(field)
        if field["encoding"] == "number":
            return int(value) if re.fullmatch(r"0|[1-9]\d*", value) else None
        if field["encoding"] == "flag":
            return {"0": False, "1": True}.get(value)
        return value

    def _outcome(self, request, kind, button, item, data):
        if kind in _RESULTS:
            return f".result == {_literal(_RESULTS[kind])}"
        if data:
            return f".data == {_literal(data)}"
        if item:
            has_header = request.get("ui_param_header", "0") != "0"
            return _text_or_number("row", request.get("ui_param_entries", [])[has_header:], "item", item)
        return _text_or_number("label", request.get("ui_param_buttons", []), "button", button)
