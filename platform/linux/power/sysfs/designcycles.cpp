// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/designcycles.h"

#include "platform/linux/power/sysfs/attributedirectory.h"
#include "platform/linux/power/sysfs/attributetext.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

bool matches(const QJsonValue &pattern, const QString &text)
{
    const QString expression = QRegularExpression::anchoredPattern(pattern.toString());
    return QRegularExpression(expression).match(text).hasMatch();
}

bool isPortable(const MachineIdentity &machine, const QJsonArray &portableTypes)
{
    if (!machine.chassisType)
        return true;
    return portableTypes.contains(QJsonValue(*machine.chassisType));
}

std::optional<qint64> countOf(const QJsonValue &value)
{
    const qint64 count = value.toInteger();
    return count > 0 ? std::optional<qint64>(count) : std::nullopt;
}

} // namespace

MachineIdentity readMachineIdentity(const std::string &root)
{
    AttributeDirectory::Buffer buffer;
    const AttributeDirectory dmi((root + "/class/dmi/id").c_str());
    const AttributeDirectory tree((root + "/firmware/devicetree/base").c_str());
    MachineIdentity machine;
    machine.vendor = nameOf(dmi.read("sys_vendor", buffer));
    machine.product = nameOf(dmi.read("product_name", buffer));
    machine.chassisType = numberOf(dmi.read("chassis_type", buffer));
    if (machine.product.isEmpty())
        machine.product = nameOf(tree.read("model", buffer));
    return machine;
}

std::optional<qint64> designCycles(const MachineIdentity &machine, const QByteArray &table)
{
    const QJsonObject root = QJsonDocument::fromJson(table).object();
    const QJsonArray machines = root.value("machines"_L1).toArray();
    const auto row = std::find_if(machines.begin(), machines.end(), [&](const QJsonValue &value) {
        return matches(value["vendor"_L1], machine.vendor)
            && matches(value["product"_L1], machine.product);
    });
    if (row != machines.end())
        return countOf((*row)["cycles"_L1]);
    const QJsonObject others = root.value("notebooks"_L1).toObject();
    if (!isPortable(machine, others.value("chassisTypes"_L1).toArray()))
        return std::nullopt;
    return countOf(others.value("cycles"_L1));
}

QByteArray designCyclesTable()
{
    QFile file(u":/designcycles.json"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ferrin
