# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""corpora.py FOLDER: what the fuzzers begin with, a folder for each.

The power supplies and what UPower says of them are those of the recorded machines (tests/machines), as
they were, unplugged and plugged in; the rest is written down in seeds.py.
"""

import json
import pathlib
import re
import sys

TESTS = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(TESTS / "virtuallaptop"))

import machine as machines  # noqa: E402, pylint: disable=wrong-import-position
import seeds  # noqa: E402, pylint: disable=wrong-import-position

STATES = {"charging": 1, "discharging": 2, "empty": 3, "fully-charged": 4, "pending-charge": 5}
NUMBERS = {"Percentage": ("percentage", "d", 1), "TimeToEmpty": ("time to empty", "x", 3600),
           "TimeToFull": ("time to full", "x", 3600)}


def main(folder):
    for path in sorted((TESTS / "machines").glob("*.json")):
        record = json.loads(path.read_text(encoding="utf-8"))
        put(folder / "powersupplies" / path.stem, supply_lines(machines.Machine(record).supplies))
        put(folder / "upower" / path.stem, upower_lines(record.get("upower", {})))
    for fuzzer, inputs in seeds.SEEDS.items():
        for number, content in enumerate(inputs):
            put(folder / fuzzer / f"seed-{number}", content)


def put(path, content):
    if content:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def supply_lines(supplies):
    lines = []
    for name, attributes in supplies.items():
        kept = {key: value for key, value in attributes.items() if not machines.failing_error(value)}
        lines += [f"{name}/{key}={value}" for key, value in kept.items()]
    lines.append("/5")
    for online, status in (("0", "Discharging"), ("1", "Charging")):
        lines += [f"{name}/online={online}" for name, attributes in supplies.items()
                  if machines.is_adapter(attributes)]
        lines += [f"{name}/status={status}" for name, attributes in supplies.items()
                  if machines.is_battery(attributes)]
        lines += ["/5", "/60"]
    return text_of(lines)


def upower_lines(figures):
    if not figures:
        return None
    lines = ["0/Type=u2", f"0/State=u{STATES.get(figures.get('state'), 0)}",
             f"0/PowerSupply=b{str(figures.get('power supply') != 'no').lower()}",
             f"0/IsPresent=b{str(figures.get('present') != 'no').lower()}",
             f"0/Model=s{figures.get('model', '')}",
             f"0/NativePath=s{figures.get('native-path', '')}"]
    for name, (key, kind, scale) in NUMBERS.items():
        number = re.match(r"^\d+(\.\d+)?", figures.get(key, ""))
        if number:
            value = float(number.group()) * scale
            lines.append(f"0/{name}={kind}{value if kind == 'd' else round(value)}")
    return text_of(lines + ["/", "/0", "/1"])


def text_of(lines):
    return "".join(line + "\n" for line in lines).encode()


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
