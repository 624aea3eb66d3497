"""The programs that are measured beside each other. Each shows the same text and two buttons."""

import os
import signal
import time
from pathlib import Path

import processes
from tv import now

TITLE = "Your card is ready"
TEXT = "The film channels can be watched until the end of the month. Would you like to renew now?"


def message(ui_id, **more):
    """A request for a message; no timer of the application runs while it is shown."""
    values = {"signal_type_key": ("s", "signal_tvservice"), "signal_tvservice_key": ("s", "ui_type_message"),
              "ui_param_ui_id": ("s", str(ui_id)), "ui_param_source_id": ("s", "254"),
              "ui_param_title": ("s", TITLE), "ui_param_sub": ("s", ""), "ui_param_bottom": ("s", ""),
              "ui_param_txt": ("s", TEXT), "ui_param_buttons": ("as", ["Renew", "Later"]),
              "ui_param_noclose": ("s", "0")}
    values.update(more)
    return values


def rows(ui_id, count):
    """A request for a list of three columns."""
    entries = [f"Row {i}\tChannel {i * 7 % 1000}\t{i % 60:02} min" for i in range(1, count + 1)]
    values = message(ui_id, signal_tvservice_key=("s", "ui_type_list"), ui_param_entries=("as", entries),
                     ui_param_format=("s", "LLR"), ui_param_header=("s", "0"), ui_param_buttons=("as", []))
    del values["ui_param_txt"], values["ui_param_noclose"]
    return values


class Activated:
    """Started by the bus at the first request."""

    def __init__(self, bus, label, name):
        self._bus, self.label, self.name = bus, label, name
        self.pid = 0

    def start(self, values=None):
        """When the request was sent."""
        sent, self._serial = self._bus.request(self.name, values or message(1))
        return sent

    def shown(self, pid):
        self.pid = pid
        self._bus.reply(self._serial)

    def stop(self):
        os.kill(self.pid, signal.SIGKILL)
        while processes.lives(self.pid) or self._bus.process_of(self.name):
            time.sleep(0.01)
        self._bus.answers.clear()
        self.pid = 0


class Application(Activated):
    def __init__(self, bus):
        super().__init__(bus, "this application", "org.tizen.veskar-app")


class Floor(Activated):
    """The least program on the same toolkit (floor.cpp)."""

    def __init__(self, bus):
        super().__init__(bus, "floor", "org.tizen.veskar-floor")
        program = Path(os.environ["VESKAR_BUILD_DIR"]) / "bench/veskar-bench-floor"
        service = Path(os.environ["VESKAR_TV_DIR"]) / f"services/{self.name}.service"
        service.write_text(f'[D-BUS Service]\nName={self.name}\nExec="{program}"\n')
        bus.daemon("ReloadConfig")


class Spawned:
    """Started as a script would start it."""

    def __init__(self, label, command, conversation=""):
        self.label, self._command, self._conversation = label, command, conversation
        self.pid = 0

    def start(self):
        """When the process was spawned."""
        read, self._write = os.pipe()
        os.write(self._write, self._conversation.encode())
        silent = os.open(os.devnull, os.O_WRONLY)
        actions = [(os.POSIX_SPAWN_DUP2, read, 0), (os.POSIX_SPAWN_DUP2, silent, 1),
                   (os.POSIX_SPAWN_DUP2, silent, 2), (os.POSIX_SPAWN_CLOSE, self._write)]
        spawned = now()
        self.pid = os.posix_spawnp(self._command[0], self._command, os.environ, file_actions=actions)
        os.close(read)
        os.close(silent)
        return spawned

    def shown(self, pid):
        assert pid == self.pid, f"a window of process {pid} instead of {self.label}"

    def stop(self):
        os.kill(self.pid, signal.SIGKILL)
        os.waitpid(self.pid, 0)
        os.close(self._write)
        self.pid = 0


def others():
    os.environ["QT_QPA_PLATFORM"] = "wayland"
    os.environ["GDK_BACKEND"] = "wayland"
    confirm = f"SETTITLE {TITLE}\nSETDESC {TEXT}\nSETOK Renew\nSETCANCEL Later\nCONFIRM\n"
    return [Spawned("zenity", ["zenity", "--question", "--title", TITLE, "--text", TEXT, "--ok-label", "Renew",
                               "--cancel-label", "Later"]),
            Spawned("yad", ["yad", "--title", TITLE, "--text", TEXT, "--button=Renew:0", "--button=Later:1"]),
            Spawned("pinentry-qt", ["pinentry-qt"], confirm)]
