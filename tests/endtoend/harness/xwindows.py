# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""What no tool does to the windows of an X server without a window manager."""

import contextlib
import ctypes

CLIENT_MESSAGE = 33


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("rest_of_any_event", ctypes.c_long * 24)]


@contextlib.contextmanager
def _connection(display_name):
    """The library, a connection, and what gives atoms."""
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    for function in (x11.XInternAtom, x11.XGetSelectionOwner):
        function.restype = ctypes.c_ulong
    display = ctypes.c_void_p(x11.XOpenDisplay(display_name.encode()))
    yield x11, display, lambda name: x11.XInternAtom(display, name, 0)
    x11.XCloseDisplay(display)


def close_window(display_name, window):
    """Asks a window's program to close it, as a click on a title bar's button does."""
    with _connection(display_name) as (x11, display, atom):
        event = ClientMessage(type=CLIENT_MESSAGE, window=window,
                              message_type=atom(b"WM_PROTOCOLS"), format=32)
        event.data[0] = atom(b"WM_DELETE_WINDOW")
        x11.XSendEvent(display, ctypes.c_ulong(window), 0, ctypes.c_long(0), ctypes.byref(event))


def has_owner(display_name, selection):
    """Whether a selection has one."""
    with _connection(display_name) as (x11, display, atom):
        return x11.XGetSelectionOwner(display, ctypes.c_ulong(atom(selection))) != 0
