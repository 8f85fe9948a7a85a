# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""The inputs that the fuzzers begin with where no machine has recorded any."""

import json
import struct

SETTINGS = {"showIconWhenDischarging": True, "statusItemWidth": 41.5, "appColor": "dark",
            "dischargingIconSelected": {"data": "ImJhdHRlcnkuMTAwIg=="}, "adapterWattsStored": 65}
LEARNED = {"a battery": {"draw": 6.1, "drawHours": 3.5, "knee": 70, "tail": 2, "rate": 40,
                         "charges": 3, "stop": 80}, "known": {"draw": 12, "drawHours": 1}}
GTK_SHEET = b"""@import "other.css";
@define-color base #1e1e2e;
@define-color dim alpha(@base, 0.5);
/* a comment */
* { color: @base; font-size: 12px }
window#waybar, #tray { background: linear-gradient(@base, rgba(1, 2, 3, 40%)); color: white }
"""
QT_SHEET = b"#tray { background-color: qlineargradient(stop: 0 #fff, stop: 1 #000); color: rgb(1,2,3) }"


def message(kind, payload):
    content = json.dumps(payload).encode()
    return b"i3-ipc" + struct.pack("=II", len(content), kind) + content


BAR = {"id": "bar-0", "colors": {"background": "#000000", "statusline": "#ffffffaa"}}
SUBSCRIBED = message(2, {"success": True})

CALLS = b"""itemproperties/GetAll=sorg.kde.StatusNotifierItem
itemproperties/Get=sorg.kde.StatusNotifierItem|sToolTip
item/Activate=i5|i7
item/Scroll=i1|svertical
menu/GetLayout=i0|i-1|a
menu/GetGroupProperties=I1|alabel
menu/AboutToShow=i0
menu/Event=i1|sclicked|Vx|u0
menu/EventGroup=eclicked
introspection/Introspect=
"""

REPLIES = b"""reply/EnumerateDevices=O/a
reply/GetAll=PType:u2;PowerSupply:btrue;IsPresent:btrue;State:u2;Percentage:d37;TimeToEmpty:x3600
signal/PropertiesChanged=sorg.freedesktop.UPower.Device|PState:u1;Percentage:d38;TimeToFull:x60|a
signal/DeviceAdded=o/b
reply/GetAll=PType:u5;PowerSupply:bfalse
signal/DeviceRemoved=o/a
"""

SEEDS = {
    "buscalls": [CALLS, b"item/ContextMenu=i5|i7\n",
                 b"menuproperties/Set=scom.canonical.dbusmenu|sVersion|Vx\n"],
    "powersupplies": [],
    "upower": [],
    "upowerreplies": [REPLIES,
                      b"reply/EnumerateDevices=s/a\n", b"reply/EnumerateDevices=O/a\nreply/GetAll=s\n"],
    "defaults": [
        ("{\n" + ",\n".join(json.dumps(key) + ": " + json.dumps(value)
                            for key, value in SETTINGS.items()) + "\n}\n").encode(),
        json.dumps(SETTINGS).encode(),
        json.dumps(SETTINGS, indent=1).encode()[:-20],
        b"", b"[]", b"null", b'{"added": "no"}', b'{"a": {"data": 5}}',
    ],
    "learned": [json.dumps(LEARNED).encode(), b"{}", b"", b"[]",
                b'{"known": {"draw": 1e308, "drawHours": -1, "knee": "x"}}'],
    "stylesheet": [GTK_SHEET, QT_SHEET, b'@import url("style.css");', b"a{color:#fff}",
                   b"@define-color a @a @a @a;a{color:@a}", b"a{color:alpha(mix(@b,#fff,0.3),50%)}"],
    "barconfig": [
        b"\xff" + SUBSCRIBED + message(6, ["bar-0", "bar-1"]) + message(6, BAR),
        b"\x07" + SUBSCRIBED + message(6, ["bar-0"]) + message(6, BAR) + message(0x80000004, BAR),
        b"\x01" + message(6, []) + message(6, "no"),
    ],
}
