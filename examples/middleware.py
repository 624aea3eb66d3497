#!/usr/bin/python3
"""A middleware that asks for each kind of screen, one after the other, and prints what the viewer does.

Written with docs/dbus.md alone, and Debian's python3-jeepney. Inside a TV: ./tv shell -- examples/middleware.py
"""

from jeepney import DBusAddress, new_method_call
from jeepney.io.blocking import open_dbus_connection
from jeepney.wrappers import unwrap_msg

DESK = DBusAddress("/org/tizen/veskar_middleware", "org.tizen.veskar-middleware", "org.tizen.VesKarDesk1")
SOURCE = 255
OK = {"ui_param_buttons": ["OK", "Cancel"]}
ROWS = {"ui_param_entries": ["Arte\t7", "BBC\t12"], "ui_param_format": "LR"}
SCREENS = {
    "ui_type_message": {"ui_param_txt": "Renew now?", **OK},
    "ui_type_image": {"ui_param_image_location": "/nowhere.png", **OK},
    "ui_type_list": {**ROWS, **OK},
    "ui_type_select": ROWS,
    "ui_type_multiple_list": {"ui_param_entries": ["Arte", "BBC"], **OK},
    "ui_type_multiple_image_list": {"ui_param_entries": ["Arte", "BBC"], "ui_param_selectable": "1"},
    "ui_type_pin_entry": {"ui_param_txt": "The module's PIN"},
    "ui_type_progress": {"ui_param_percent": "40", **OK},
    "ui_type_loading": {"ui_param_txt": "One moment", **OK},
}


def call(bus, method, signature, *arguments):
    *ids, request = arguments
    values = {key: ("as" if isinstance(value, list) else "s", value) for key, value in request.items()}
    return unwrap_msg(bus.send_and_get_reply(new_method_call(DESK, method, signature, (*ids, values)), timeout=120))


with open_dbus_connection("SESSION") as bus:
    for ui_id, (kind, values) in enumerate(SCREENS.items(), start=1):
        request = {"signal_type_key": "signal_tvservice", "signal_tvservice_key": kind, "ui_param_title": kind,
                   "ui_param_ui_id": str(ui_id), "ui_param_source_id": str(SOURCE), **values}
        _, _, outcome, button, item, data = call(bus, "Ask", "iya{sv}", ui_id, SOURCE, request)
        print(kind, {0: "answered", 2: "closed", 3: "Back"}[outcome], button, item, data, flush=True)
    menu = {"signal_type_key": "signal_menu_pos", "menu_pos_key": "veskar_add_op"}
    print(*call(bus, "OpenMenu", "a{sv}", menu))
    call(bus, "Tell", "a{sv}", {"signal_type_key": "sequence"})
