// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/machinerecord.h"

#include <QHash>
#include <QRegularExpression>

#include <array>
#include <optional>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

struct Figure
{
    QLatin1StringView attribute;
    QLatin1StringView property;
    double scale;
};

constexpr std::array figures {
    Figure { "energy_now"_L1, "energy"_L1, 1e6 },
    Figure { "energy_full"_L1, "energy-full"_L1, 1e6 },
    Figure { "energy_full_design"_L1, "energy-full-design"_L1, 1e6 },
    Figure { "power_now"_L1, "energy-rate"_L1, 1e6 },
    Figure { "voltage_now"_L1, "voltage"_L1, 1e6 },
    Figure { "voltage_min_design"_L1, "voltage-min-design"_L1, 1e6 },
    Figure { "temp"_L1, "temperature"_L1, 10 },
    Figure { "capacity"_L1, "percentage"_L1, 1 },
    Figure { "cycle_count"_L1, "charge-cycles"_L1, 1 },
};

QString statusOf(const QString &state)
{
    static const QHash<QString, QString> statuses {
        { u"charging"_s, u"Charging"_s },
        { u"discharging"_s, u"Discharging"_s },
        { u"fully-charged"_s, u"Full"_s },
        { u"pending-charge"_s, u"Not charging"_s },
        { u"pending-discharge"_s, u"Not charging"_s },
        { u"empty"_s, u"Discharging"_s },
    };
    return statuses.value(state, u"Unknown"_s);
}

std::optional<double> leadingNumber(QString text)
{
    static const QRegularExpression number(u"^-?[0-9]+([.][0-9]+)?"_s);
    const QRegularExpressionMatch match = number.match(text.replace(u',', u'.'));
    return match.hasMatch() ? std::optional(match.captured().toDouble()) : std::nullopt;
}

QJsonObject attributesOfDevice(const QString &name, const QJsonObject &device)
{
    QJsonObject attributes;
    attributes[u"type"_s] = name.startsWith("ups"_L1) ? u"UPS"_s : u"Battery"_s;
    attributes[u"status"_s] = statusOf(device.value("state"_L1).toString());
    if (device.value("power supply"_L1).toString() == "no"_L1)
        attributes[u"scope"_s] = u"Device"_s;
    for (const Figure &figure : figures) {
        if (const auto number = leadingNumber(device.value(figure.property).toString()))
            attributes[figure.attribute] = QString::number(qRound64(*number * figure.scale));
    }
    return attributes;
}

QJsonObject devicesOf(const QJsonObject &record)
{
    QJsonObject devices;
    const QJsonObject main = record.value("upower"_L1).toObject();
    const QString name = main.value("native-path"_L1).toString();
    if (record.value("kind"_L1).toString() != "upower"_L1 || name.isEmpty())
        return devices;
    devices[name] = attributesOfDevice(name, main);
    const QJsonObject others = record.value("upower_other_devices"_L1).toObject();
    for (auto other = others.begin(); other != others.end(); ++other) {
        const QJsonObject device = other->toObject();
        if (other.key() != "DisplayDevice"_L1 && device.contains("percentage"_L1))
            devices[other.key()] = attributesOfDevice(other.key(), device);
    }
    return devices;
}

QString guessedType(const QString &name, const QJsonObject &attributes)
{
    if (!attributes.contains("online"_L1))
        return u"Battery"_s;
    const bool usb = name.contains("usb"_L1) || name.contains("ucsi"_L1);
    return usb ? u"USB"_s : u"Mains"_s;
}

} // namespace

QJsonObject suppliesOf(const QJsonObject &record)
{
    static const QRegularExpression attributeName(u"^[a-z][a-z0-9_]*$"_s);
    QJsonObject supplies = devicesOf(record);
    const QJsonObject shown = record.value("supplies"_L1).toObject();
    for (auto supply = shown.begin(); supply != shown.end(); ++supply) {
        const QJsonObject attributes = supply->toObject();
        QJsonObject all = supplies.value(supply.key()).toObject();
        for (auto entry = attributes.begin(); entry != attributes.end(); ++entry) {
            if (attributeName.match(entry.key()).hasMatch())
                all[entry.key()] = *entry;
        }
        if (!all.contains("type"_L1))
            all[u"type"_s] = guessedType(supply.key(), attributes);
        supplies[supply.key()] = all;
    }
    return supplies;
}

} // namespace ferrin::test
