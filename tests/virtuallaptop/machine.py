# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""Reads a machine's JSON (tests/machines/README.md tells the form) into power supplies.

A supply is a dictionary of sysfs attributes, all texts. A record that holds only UPower's figures
is translated back into the attributes that a kernel would have shown for them.
"""

import json
import re

ATTRIBUTE = re.compile(r"^[a-z][a-z0-9_]*$")
READ_ERROR = re.compile(r"^<read error (\w+)>$")

STATUS_OF_STATE = {
    "charging": "Charging",
    "discharging": "Discharging",
    "fully-charged": "Full",
    "pending-charge": "Not charging",
    "pending-discharge": "Not charging",
    "empty": "Discharging",
}
TECHNOLOGIES = {"lithium-ion": "Li-ion", "lithium-polymer": "Li-poly"}

# A 50 Wh pack with some wear, an ACPI adapter, and a USB-C port without a partner.
DEFAULT = {
    "machine": "A laptop with a USB-C charging port",
    "kind": "sysfs",
    "supplies": {
        "BAT0": {
            "type": "Battery",
            "status": "Discharging",
            "present": "1",
            "technology": "Li-ion",
            "cycle_count": "123",
            "voltage_min_design": "11550000",
            "voltage_now": "11812000",
            "power_now": "6100000",
            "energy_full_design": "50000000",
            "energy_full": "46000000",
            "energy_now": "17020000",
            "capacity": "37",
            "capacity_level": "Normal",
            "model_name": "FR50XL",
            "manufacturer": "ACME",
            "serial_number": "0042",
        },
        "AC": {"type": "Mains", "online": "0"},
        "ucsi-source-psy-USBC000:001": {
            "type": "USB",
            "scope": "System",
            "online": "0",
            "usb_type": "[C] PD PD_PPS",
            "voltage_min": "5000000",
            "voltage_max": "5000000",
            "voltage_now": "5000000",
            "current_max": "0",
            "current_now": "0",
        },
    },
}

# The port after the partner and the laptop have agreed on a power contract.
DEFAULT_ADAPTER_DETAILS = {
    "usb_type": "C [PD] PD_PPS",
    "voltage_max": "20000000",
    "voltage_now": "20000000",
    "current_max": "3250000",
    "current_now": "3250000",
    "manufacturer": "Acme",
    "model_name": "65W USB-C",
}


class Machine:
    """The power supplies of one laptop and, where known, its USB-C ports and its maker."""

    def __init__(self, record):
        self.supplies = {}
        for name, attributes in record.get("supplies", {}).items():
            self.supplies[name] = _kernel_attributes(name, attributes)
        for name, attributes in _supplies_of_upower(record).items():
            self.supplies[name] = attributes | self.supplies.get(name, {})
        self.typec = record.get("typec", {})
        self.power_delivery = record.get("usb_power_delivery", {})
        self.dmi = record.get("dmi", {})


def load(path=None):
    """The machine of a file, or the default laptop."""
    if path is None:
        return Machine(DEFAULT)
    with open(path, encoding="utf-8") as file:
        return Machine(json.load(file))


def failing_error(value):
    """The error name of a value that stands for a read error, else None."""
    match = READ_ERROR.match(value)
    return match.group(1) if match else None


def is_battery(attributes):
    return attributes.get("type") == "Battery" and attributes.get("scope") != "Device"


def is_adapter(attributes):
    return "online" in attributes and attributes.get("scope") != "Device"


def _kernel_attributes(name, attributes):
    kept = {key: str(value) for key, value in attributes.items() if ATTRIBUTE.match(key)}
    if "type" not in kept:
        kept["type"] = _type_by_name(name, kept)
    return kept


def _type_by_name(name, attributes):
    if "online" not in attributes:
        return "Battery"
    return "USB" if "usb" in name.lower() or "ucsi" in name.lower() else "Mains"


def _supplies_of_upower(record):
    main = record.get("upower", {})
    devices = {}
    if record.get("kind") == "upower":
        name = main.get("native-path", "BAT0" if "energy" in main else None)
        if name:
            devices[name.rsplit("/", 1)[-1]] = _attributes_of_upower(main)
    for name, figures in record.get("upower_other_devices", {}).items():
        if "percentage" in figures and name != "DisplayDevice":
            devices[name] = _attributes_of_upower(figures)
            if name.startswith("ups"):
                devices[name]["type"] = "UPS"
    return devices


def _attributes_of_upower(figures):
    attributes = {
        "type": "Battery",
        "status": STATUS_OF_STATE.get(figures.get("state"), "Unknown"),
        "present": "0" if figures.get("present") == "no" else "1",
    }
    if figures.get("power supply") == "no":
        attributes["scope"] = "Device"
    scaled = {
        "energy_now": ("energy", 1e6),
        "energy_full": ("energy-full", 1e6),
        "energy_full_design": ("energy-full-design", 1e6),
        "power_now": ("energy-rate", 1e6),
        "voltage_now": ("voltage", 1e6),
        "voltage_min_design": ("voltage-min-design", 1e6),
        "voltage_max_design": ("voltage-max-design", 1e6),
        "temp": ("temperature", 10),
        "capacity": ("percentage", 1),
        "cycle_count": ("charge-cycles", 1),
    }
    for attribute, (key, scale) in scaled.items():
        number = re.match(r"^-?\d+([.,]\d+)?", figures.get(key, ""))
        if number:
            attributes[attribute] = str(round(float(number.group().replace(",", ".")) * scale))
    texts = {"manufacturer": "vendor", "model_name": "model", "serial_number": "serial"}
    for attribute, key in texts.items():
        if key in figures:
            attributes[attribute] = figures[key]
    if figures.get("technology") in TECHNOLOGIES:
        attributes["technology"] = TECHNOLOGIES[figures["technology"]]
    return attributes
