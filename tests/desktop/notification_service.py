"""The desktop's notification service, as far as the program needs one: it keeps the texts that it is to show."""

import threading

from gi.repository import Gio, GLib

_NAME = "org.freedesktop.Notifications"
_INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name="{_NAME}">
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="GetServerInformation">
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
  </method>
</interface></node>""").interfaces[0]


class NotificationService:
    def __init__(self):
        self.texts = []
        self._loop = GLib.MainLoop()
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        self._object = self._bus.register_object("/org/freedesktop/Notifications", _INTERFACE, self._called, None, None)
        self._name = Gio.bus_own_name_on_connection(self._bus, _NAME, Gio.BusNameOwnerFlags.NONE, None, None)
        self._thread = threading.Thread(target=self._loop.run)
        self._thread.start()

    def close(self):
        Gio.bus_unown_name(self._name)
        self._bus.unregister_object(self._object)
        self._loop.quit()
        self._thread.join()

    def _called(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        answers = {"Notify": ("(u)", (1,)), "GetCapabilities": ("(as)", (["body"],)),
                   "GetServerInformation": ("(ssss)", ("test", "test", "1", "1.2"))}
        if method == "Notify":
            self.texts.append(arguments[4])
        answer = answers.get(method)
        invocation.return_value(GLib.Variant(*answer) if answer else None)
