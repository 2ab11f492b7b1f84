"""What the session bus knows of the tray, where its protocol is StatusNotifierItem."""

from gi.repository import Gio, GLib

_WATCHER = "org.kde.StatusNotifierWatcher"


def _property(name):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    try:
        return bus.call_sync(_WATCHER, "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties", "Get",
                             GLib.Variant("(ss)", (_WATCHER, name)), None,
                             Gio.DBusCallFlags.NO_AUTO_START, 2000, None).unpack()[0]
    except GLib.Error:
        return None


def has_host():
    """Whether there is a panel that shows items."""
    return bool(_property("IsStatusNotifierHostRegistered"))


def items():
    """The registered items; empty also where there is no such tray."""
    return _property("RegisteredStatusNotifierItems") or []
