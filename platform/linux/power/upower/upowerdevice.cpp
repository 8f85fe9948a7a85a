// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerdevice.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// A name is for people: whatever is longer than this was never meant to be read.
constexpr qsizetype longestName = 256;

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
    const QString text = name.left(longestName).trimmed();
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

bool same(bool value)
{
    return value;
}

/// Takes single properties out of a map, and keeps the names of those that were of a wrong type.
class PropertyTaker
{
public:
    explicit PropertyTaker(const QVariantMap &properties)
        : m_properties(properties)
    {
    }

    template <typename Value, typename Wire>
    void take(const QString &name, std::optional<Value> *value, Value (*convert)(Wire))
    {
        takeAs<std::decay_t<Wire>>(name, value, convert);
    }

    template <typename Value, typename Wire>
    void take(const QString &name, std::optional<Value> *value,
              std::optional<Value> (*convert)(Wire))
    {
        takeAs<std::decay_t<Wire>>(name, value, convert);
    }

    [[nodiscard]] const QStringList &wrong() const { return m_wrong; }

private:
    template <typename Wire, typename Value, typename Convert>
    void takeAs(const QString &name, std::optional<Value> *value, Convert convert)
    {
        const auto found = m_properties.constFind(name);
        if (found == m_properties.constEnd())
            return;
        if (found->metaType() == QMetaType::fromType<Wire>()) {
            *value = convert(found->template value<Wire>());
        } else {
            value->reset();
            m_wrong.append(name);
        }
    }

    const QVariantMap &m_properties;
    QStringList m_wrong;
};

} // namespace

QStringList UPowerDevice::update(const QVariantMap &properties)
{
    PropertyTaker taker(properties);
    taker.take(u"Type"_s, &kind, &kindOf);
    taker.take(u"PowerSupply"_s, &powersSystem, &same);
    taker.take(u"IsPresent"_s, &isPresent, &same);
    taker.take(u"State"_s, &state, &stateOf);
    taker.take(u"Percentage"_s, &percentage, &percentageOf);
    taker.take(u"TimeToEmpty"_s, &timeToEmpty, &timeOf);
    taker.take(u"TimeToFull"_s, &timeToFull, &timeOf);
    taker.take(u"Model"_s, &model, &nameOf);
    taker.take(u"NativePath"_s, &nativePath, &nameOf);
    return taker.wrong();
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
