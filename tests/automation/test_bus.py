"""The bus is as its interface files say, and a middleware written by them works."""

import os
import pathlib
import signal
import xml.etree.ElementTree as ElementTree

import pytest
from jeepney import DBusAddress, DBusErrorResponse, new_method_call
from jeepney.bus_messages import message_bus
from jeepney.io.blocking import open_dbus_connection
from jeepney.wrappers import unwrap_msg
from veskar_tv.tv import until

ROOT = pathlib.Path(__file__).parents[2]


@pytest.fixture
def bus(tv):
    with open_dbus_connection(tv.environment["DBUS_SESSION_BUS_ADDRESS"]) as connection:
        yield connection


def members(interface):
    """Each member with all that a caller depends on."""
    return {(member.tag, member.get("name"), member.get("type"), member.get("access")):
            [(arg.get("name"), arg.get("type"), arg.get("direction")) for arg in member.iter("arg")]
            for member in interface if member.tag != "annotation"}


def expect_as_written(bus, name, interfaces):
    """All interfaces of the object but the bus's own."""
    path = "/" + name.replace(".", "/").replace("-", "_")
    call = new_method_call(DBusAddress(path, name, "org.freedesktop.DBus.Introspectable"), "Introspect")
    object_ = ElementTree.fromstring(unwrap_msg(bus.send_and_get_reply(call))[0])
    live = {each.get("name"): members(each) for each in object_.findall("interface")
            if not each.get("name").startswith("org.freedesktop.")}
    files = [ROOT / f"host/dbus/org.tizen.{interface}.xml" for interface in interfaces]
    assert live == {file.stem: members(ElementTree.parse(file).find("interface")) for file in files}


@pytest.mark.parametrize("name, interfaces", [
    ("org.tizen.veskar-app", ["Application1", "Screen1"]),
    ("org.tizen.function-osd", ["Application1", "Screen1"]),
    ("org.tizen.veskar-middleware", ["VesKarController1", "VesKarDesk1"]),
    ("org.tizen.context-manager", ["ContextManager1"]),
])
def test_object_is_as_its_files_say(bus, name, interfaces):
    expect_as_written(bus, name, interfaces)


def test_object_of_a_leaving_process_is_as_its_file_says(bus, middleware, viewer):
    middleware.ask("message", title="Card")
    viewer.wait("shown")
    pid, = unwrap_msg(bus.send_and_get_reply(message_bus.GetConnectionUnixProcessID("org.tizen.veskar-middleware")))
    os.kill(pid, signal.SIGSTOP)  # so that the process waits for the receiver of its last answer
    try:
        application = DBusAddress("/org/tizen/veskar_app", "org.tizen.veskar-app", "org.tizen.Application1")
        bus.send(new_method_call(application, "Terminate"))
        leaving = message_bus.NameHasOwner("org.tizen.veskar-app.leaving")
        until(lambda: unwrap_msg(bus.send_and_get_reply(leaving))[0], lambda: "nobody leaves")
        expect_as_written(bus, "org.tizen.veskar-app.leaving", ["LeavingApplication1"])
    finally:
        os.kill(pid, signal.SIGCONT)


def test_errors_have_the_documented_names(bus):
    desk = DBusAddress("/org/tizen/veskar_middleware", "org.tizen.veskar-middleware", "org.tizen.VesKarDesk1")
    call = new_method_call(desk, "Tell", "a{sv}", ({"ui_param_title": ("i", 1)},))
    with pytest.raises(DBusErrorResponse) as refused:
        unwrap_msg(bus.send_and_get_reply(call))
    assert refused.value.name == "org.tizen.VesKarDesk1.Error.Refused"
    assert "org.tizen.Application1.Error.Refused" in refused.value.data[0]


def test_middleware_of_a_stranger_gets_each_answer(tv, viewer):
    middleware = tv.start(ROOT / "examples/middleware.py")
    for kind, keys, answer in [
            ("message", "Right Return", "answered 2 0"), ("image", "Back", "Back 0 0"),
            ("list", "Exit", "closed 0 0"), ("select", "Down Return", "answered 0 2"),
            ("multiple_list", "Down Return Down Return", "answered 0 0 2"),
            ("multiple_image_list", "Return", "answered 0 1"), ("pin_entry", "4 7 1 1", "answered 0 0 4711"),
            ("progress", "Return", "answered 1 0"), ("loading", "Return", "answered 1 0")]:
        viewer.expect("One moment" if kind == "loading" else f"ui_type_{kind}")
        viewer.press(*keys.split())
        middleware.expect(f"^ui_type_{kind} {answer}")
    middleware.expect(r"\[\('name:menu ', 'stop'\)\] \[2\]")
