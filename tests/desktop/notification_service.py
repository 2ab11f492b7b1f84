"""The desktop's notification service, as far as the program needs one: it keeps the texts that it is to show."""

from gi.repository import GLib

from session_service import SessionService

_METHODS = """
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="GetServerInformation">
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
    <arg type="s" direction="out"/><arg type="s" direction="out"/>
  </method>"""
_ANSWERS = {"Notify": GLib.Variant("(u)", (1,)), "GetCapabilities": GLib.Variant("(as)", (["body"],)),
            "GetServerInformation": GLib.Variant("(ssss)", ("test", "test", "1", "1.2"))}


class NotificationService(SessionService):
    def __init__(self):
        self.texts = []
        super().__init__("org.freedesktop.Notifications", "/org/freedesktop/Notifications", _METHODS, self._answer)

    def _answer(self, method, arguments):
        if method == "Notify":
            self.texts.append(arguments[4])
        return _ANSWERS[method]
