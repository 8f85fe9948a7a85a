// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/bindable.h"

#include <QObject>
#include <QProperty>

#include <array>

namespace ferrin {

class DefaultsStore;

/// The nine switches by name; each is stored under its own name.
enum class DisplaySwitch {
    showIconWhenDischarging,
    showChargeWhenDischarging,
    showTimeWhenDischarging,
    showIconWhenCharging,
    showChargeWhenCharging,
    showTimeWhenCharging,
    showIconWhenCharged,
    showChargeWhenCharged,
    showTimeWhenCharged,
};

/// What the item shows in each battery state. A switch that was never set, or that holds anything
/// but a bool, is on; reading writes nothing. Bindings that read a switch follow it, whoever in the
/// process changes it. One instance serves the process. Each switch can be reached by its name or
/// by its DisplaySwitch.
class DisplaySwitches : public QObject
{
    Q_OBJECT

public:
    /// The process's, over the shared defaults, made on first use.
    [[nodiscard]] static DisplaySwitches &shared();

    /// The store must outlive this.
    explicit DisplaySwitches(DefaultsStore &defaults);

    [[nodiscard]] bool isOn(DisplaySwitch which) const { return m_on[index(which)].value(); }
    void set(DisplaySwitch which, bool on);
    [[nodiscard]] Bindable<bool> bindable(DisplaySwitch which) const { return &m_on[index(which)]; }

#define FERRIN_SWITCH(name, Name)                                                                  \
    [[nodiscard]] bool name() const                                                                \
    {                                                                                              \
        return isOn(DisplaySwitch::name);                                                          \
    }                                                                                              \
    void set##Name(bool on)                                                                        \
    {                                                                                              \
        set(DisplaySwitch::name, on);                                                              \
    }

    FERRIN_SWITCH(showIconWhenDischarging, ShowIconWhenDischarging)
    FERRIN_SWITCH(showChargeWhenDischarging, ShowChargeWhenDischarging)
    FERRIN_SWITCH(showTimeWhenDischarging, ShowTimeWhenDischarging)
    FERRIN_SWITCH(showIconWhenCharging, ShowIconWhenCharging)
    FERRIN_SWITCH(showChargeWhenCharging, ShowChargeWhenCharging)
    FERRIN_SWITCH(showTimeWhenCharging, ShowTimeWhenCharging)
    FERRIN_SWITCH(showIconWhenCharged, ShowIconWhenCharged)
    FERRIN_SWITCH(showChargeWhenCharged, ShowChargeWhenCharged)
    FERRIN_SWITCH(showTimeWhenCharged, ShowTimeWhenCharged)

#undef FERRIN_SWITCH

private:
    static constexpr std::size_t count
        = static_cast<std::size_t>(DisplaySwitch::showTimeWhenCharged) + 1;

    [[nodiscard]] static std::size_t index(DisplaySwitch which)
    {
        return static_cast<std::size_t>(which);
    }
    void readFromStore(const QString &key);

    DefaultsStore &m_defaults;
    std::array<QProperty<bool>, count> m_on;
};

} // namespace ferrin
