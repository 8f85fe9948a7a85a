// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerdevice.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxNameLength = 256;

UPowerKind kindOf(uint type)
{
    switch (type) {
    case 2:
        return UPowerKind::Battery;
    case 3:
        return UPowerKind::Ups;
    }
    return UPowerKind::Other;
}

UPowerState stateOf(uint state)
{
    return state <= static_cast<uint>(UPowerState::PendingDischarge)
        ? static_cast<UPowerState>(state)
        : UPowerState::Unknown;
}

std::optional<int> percentageOf(double percentage)
{
    if (!std::isfinite(percentage))
        return std::nullopt;
    return static_cast<int>(std::lround(std::clamp(percentage, 0.0, 100.0)));
}

std::chrono::seconds timeOf(qlonglong seconds)
{
    return std::chrono::seconds(std::max(seconds, 0LL));
}

std::optional<QString> nameOf(const QString &name)
{
    const QString text = name.left(maxNameLength).trimmed();
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

bool unchanged(bool value)
{
    return value;
}

/// Reads single properties from a map, and collects the names of those with a wrong type.
class PropertyReader
{
public:
    explicit PropertyReader(const QVariantMap &properties)
        : m_properties(properties)
    {
    }

    template <typename Value, typename Wire>
    void read(const QString &name, std::optional<Value> *value, Value (*convert)(Wire))
    {
        readAs<std::decay_t<Wire>>(name, value, convert);
    }

    template <typename Value, typename Wire>
    void read(const QString &name, std::optional<Value> *value,
              std::optional<Value> (*convert)(Wire))
    {
        readAs<std::decay_t<Wire>>(name, value, convert);
    }

    [[nodiscard]] const QStringList &wrongTypes() const { return m_wrongTypes; }

private:
    template <typename Wire, typename Value, typename Convert>
    void readAs(const QString &name, std::optional<Value> *value, Convert convert)
    {
        const auto found = m_properties.constFind(name);
        if (found == m_properties.constEnd())
            return;
        if (found->metaType() == QMetaType::fromType<Wire>()) {
            *value = convert(found->template value<Wire>());
        } else {
            value->reset();
            m_wrongTypes.append(name);
        }
    }

    const QVariantMap &m_properties;
    QStringList m_wrongTypes;
};

} // namespace

QStringList UPowerDevice::update(const QVariantMap &properties)
{
    PropertyReader reader(properties);
    reader.read(u"Type"_s, &kind, &kindOf);
    reader.read(u"PowerSupply"_s, &powersSystem, &unchanged);
    reader.read(u"IsPresent"_s, &isPresent, &unchanged);
    reader.read(u"State"_s, &state, &stateOf);
    reader.read(u"Percentage"_s, &percentage, &percentageOf);
    reader.read(u"TimeToEmpty"_s, &timeToEmpty, &timeOf);
    reader.read(u"TimeToFull"_s, &timeToFull, &timeOf);
    reader.read(u"Model"_s, &model, &nameOf);
    reader.read(u"NativePath"_s, &nativePath, &nameOf);
    return reader.wrongTypes();
}

bool UPowerDevice::mayPowerSystem() const noexcept
{
    return powersSystem.value_or(true) && kind != UPowerKind::Other;
}

bool UPowerDevice::isPowerSource() const noexcept
{
    return kind && powersSystem && mayPowerSystem() && isPresent.value_or(true);
}

} // namespace ferrin
