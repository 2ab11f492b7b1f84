"""A service on the session bus, until `close` is called; the caller gives the answers.

    SessionService("org.example.Clock", "/clock", '<method name="Now"><arg type="s" direction="out"/></method>',
                   lambda method, arguments: GLib.Variant("(s)", ("noon",)))
"""

import threading

from gi.repository import Gio, GLib


class SessionService:
    def __init__(self, name, path, methods, answer, interface=None):
        """The interface has the service's name, if none is given."""
        self._path, self._interface = path, interface or name
        described = Gio.DBusNodeInfo.new_for_xml(f'<node><interface name="{self._interface}">{methods}</interface></node>')

        def called(_bus, _sender, _path, _interface, method, arguments, invocation):
            invocation.return_value(answer(method, arguments))
        self._loop = GLib.MainLoop()
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        self._object = self._bus.register_object(path, described.interfaces[0], called, None, None)
        self._name = Gio.bus_own_name_on_connection(self._bus, name, Gio.BusNameOwnerFlags.NONE, None, None)
        self._thread = threading.Thread(target=self._loop.run, daemon=True)
        self._thread.start()

    def emit(self, signal, arguments):
        self._bus.emit_signal(None, self._path, self._interface, signal, arguments)

    def close(self):
        Gio.bus_unown_name(self._name)
        self._bus.unregister_object(self._object)
        self._loop.quit()
        self._thread.join()
