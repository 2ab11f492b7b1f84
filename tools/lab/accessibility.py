"""What a screen reader sees of a running program.

    program = find_application("keldra")
    for node in program.descendants(): print(node.role, node.name, node.states())

Every call goes to the program itself and gets all children at once, never one by number: nothing is cached, so a
widget may vanish at any time. Every operation raises `Gone` when the widget or the program no longer exists.
"""

import contextlib
import threading

from gi.repository import Gio, GLib

_ACCESSIBLE = "org.a11y.atspi.Accessible"
_PATIENCE_MS = 5000


class Gone(Exception):
    """The widget or its program no longer exists."""


class Node:
    def __init__(self, bus, owner, path):
        self._bus, self._owner, self._path = bus, owner, path

    def _call(self, interface, method, arguments=None):
        try:
            answer = self._bus.call_sync(self._owner, self._path, interface, method, arguments, None,
                                         Gio.DBusCallFlags.NONE, _PATIENCE_MS, None)
        except GLib.Error as error:
            raise Gone(error.message) from error
        return answer.unpack()

    def _property(self, name):
        return self._call("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (_ACCESSIBLE, name)))[0]

    @property
    def name(self):
        return self._property("Name")

    @property
    def role(self):
        return self._call(_ACCESSIBLE, "GetRoleName")[0]

    def children(self):
        return [Node(self._bus, owner, path) for owner, path in self._call(_ACCESSIBLE, "GetChildren")[0]]

    def descendants(self):
        for child in self.children():
            yield child
            yield from child.descendants()

    @property
    def description(self):
        return self._property("Description")

    def text(self):
        return self._call("org.a11y.atspi.Text", "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    def place(self):
        """Left, top, width and height on the screen."""
        return self._call("org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (0,)))[0]

    def _has_state(self, number):
        low, high = self._call(_ACCESSIBLE, "GetState")[0]
        return bool((low | high << 32) >> number & 1)

    # The numbers are defined by the protocol.
    def is_active(self):
        return self._has_state(1)

    def is_busy(self):
        return self._has_state(3)

    def is_checked(self):
        return self._has_state(4)

    def is_focused(self):
        return self._has_state(12)

    def is_showing(self):
        return self._has_state(25)


def _connect():
    session = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                Gio.DBusCallFlags.NONE, _PATIENCE_MS, None).unpack()[0]
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)


_bus = None
_REGISTRY = "org.a11y.atspi.Registry"


def _connection():
    global _bus
    _bus = _bus or _connect()
    return _bus


def find_application(name):
    """The running program of that name, or None."""
    registry = Node(_connection(), _REGISTRY, "/org/a11y/atspi/accessible/root")
    return next((program for program in registry.children() if program.name == name), None)


class Announcements:
    """The notifications that a screen reader reads, until `close` is called.

    A separate thread appends to `texts`."""

    def __init__(self):
        self.texts = []
        context = GLib.MainContext()
        self._loop = GLib.MainLoop(context)
        # Programs send only events that a client has registered for.
        _connection().call_sync(_REGISTRY, "/org/a11y/atspi/registry", _REGISTRY, "RegisterEvent",
                                GLib.Variant("(sass)", ("object:state-changed:showing", [], "")), None,
                                Gio.DBusCallFlags.NONE, _PATIENCE_MS, None)
        context.push_thread_default()
        self._subscription = _bus.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, "showing",
                                                   Gio.DBusSignalFlags.NONE, self._shown)
        context.pop_thread_default()
        self._thread = threading.Thread(target=self._loop.run, daemon=True)
        self._thread.start()

    def _shown(self, bus, owner, path, _interface, _signal, arguments):
        node = Node(bus, owner, path)
        with contextlib.suppress(Gone):
            if arguments[1] and node.role == "notification":
                self.texts.append(node.name)

    def close(self):
        _bus.signal_unsubscribe(self._subscription)
        self._loop.quit()
        self._thread.join()
