"""A pointer and a keyboard for a headless Wayland desktop, which has none of its own.

    hands = Hands((1280, 800))
    hands.click(640, 400)
    hands.press("Escape")

They are plugged in while the object exists. It speaks the Wayland protocol itself, because existing tools remove their
devices at once.
"""

import array
import os
import socket
import struct
import time

_KEYMAP = b"""xkb_keymap {
  xkb_keycodes { include "evdev" };
  xkb_types { include "complete" };
  xkb_compat { include "complete" };
  xkb_symbols { include "pc+us" };
};\0"""
_LEFT_BUTTON = 0x110
_KEYS = {"Escape": 1, "Tab": 15, "Return": 28, "a": 30, "space": 57}  # as the kernel counts them
# Objects are numbered in the order of creation.
_DISPLAY, _REGISTRY, _CALLBACK, _SEAT, _POINTERS, _KEYBOARDS, _POINTER, _KEYBOARD = range(1, 9)


def _string(text):
    data = text.encode() + b"\0"
    return struct.pack("=I", len(data)) + data + bytes(-len(data) % 4)


class Hands:
    def __init__(self, screen_size):
        self._size = screen_size
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.connect(os.path.join(os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"]))
        self._send(_DISPLAY, 1, _REGISTRY)
        offered = self._offered()
        for interface, number in (("wl_seat", _SEAT), ("zwlr_virtual_pointer_manager_v1", _POINTERS),
                                  ("zwp_virtual_keyboard_manager_v1", _KEYBOARDS)):
            self._request(_REGISTRY, 0, struct.pack("=I", offered[interface]) + _string(interface)
                          + struct.pack("=II", 1, number))
        self._send(_POINTERS, 0, _SEAT, _POINTER)
        self._send(_KEYBOARDS, 0, _SEAT, _KEYBOARD)
        self._send_keymap()
        self._wait()

    def move(self, x, y):
        self._send(_POINTER, 1, self._now(), x, y, *self._size)
        self._send(_POINTER, 4)
        self._wait()

    def click(self, x, y):
        self.move(x, y)
        for state in (1, 0):
            self._send(_POINTER, 2, self._now(), _LEFT_BUTTON, state)
            self._send(_POINTER, 4)
        self._wait()

    def press(self, key):
        for state in (1, 0):
            self._send(_KEYBOARD, 1, self._now(), _KEYS[key], state)
        self._wait()

    @staticmethod
    def _now():
        return time.monotonic_ns() // 1_000_000 & 0xffffffff

    def _request(self, target, opcode, body=b"", handles=()):
        message = struct.pack("=II", target, (8 + len(body)) << 16 | opcode) + body
        rights = [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", handles))] if handles else []
        self._socket.sendmsg([message], rights)

    def _send(self, target, opcode, *numbers):
        self._request(target, opcode, struct.pack(f"={len(numbers)}I", *numbers))

    def _send_keymap(self):
        handle = os.memfd_create("keymap")
        os.write(handle, _KEYMAP)
        self._request(_KEYBOARD, 0, struct.pack("=II", 1, len(_KEYMAP)), (handle,))
        os.close(handle)

    def _events(self):
        """All events until the compositor has answered all requests."""
        self._send(_DISPLAY, 0, _CALLBACK)
        while True:
            target, size_opcode = struct.unpack("=II", self._receive(8))
            body = self._receive((size_opcode >> 16) - 8)
            if target == _DISPLAY and size_opcode & 0xffff == 0:
                raise OSError(f"the compositor objects: {body[12:].decode(errors='replace')}")
            if target == _CALLBACK:
                return
            yield target, body

    def _receive(self, count):
        data = self._socket.recv(count, socket.MSG_WAITALL)
        if len(data) < count:
            raise OSError("the compositor has gone")
        return data

    def _wait(self):
        for _ in self._events():
            pass

    def _offered(self):
        numbers = {}
        for target, body in self._events():
            if target == _REGISTRY:
                number, length = struct.unpack_from("=II", body)
                numbers[body[8:8 + length - 1].decode()] = number
        return numbers
