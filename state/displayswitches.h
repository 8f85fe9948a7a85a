// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QBindable>
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
/// process changes it. One instance serves the process. Each switch has a property of its own
/// beside the three functions that serve them all, because windows bind to switches by name.
class DisplaySwitches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool showIconWhenDischarging READ showIconWhenDischarging WRITE
                   setShowIconWhenDischarging BINDABLE bindableShowIconWhenDischarging)
    Q_PROPERTY(bool showChargeWhenDischarging READ showChargeWhenDischarging WRITE
                   setShowChargeWhenDischarging BINDABLE bindableShowChargeWhenDischarging)
    Q_PROPERTY(bool showTimeWhenDischarging READ showTimeWhenDischarging WRITE
                   setShowTimeWhenDischarging BINDABLE bindableShowTimeWhenDischarging)
    Q_PROPERTY(bool showIconWhenCharging READ showIconWhenCharging WRITE setShowIconWhenCharging
                   BINDABLE bindableShowIconWhenCharging)
    Q_PROPERTY(bool showChargeWhenCharging READ showChargeWhenCharging WRITE
                   setShowChargeWhenCharging BINDABLE bindableShowChargeWhenCharging)
    Q_PROPERTY(bool showTimeWhenCharging READ showTimeWhenCharging WRITE setShowTimeWhenCharging
                   BINDABLE bindableShowTimeWhenCharging)
    Q_PROPERTY(bool showIconWhenCharged READ showIconWhenCharged WRITE setShowIconWhenCharged
                   BINDABLE bindableShowIconWhenCharged)
    Q_PROPERTY(bool showChargeWhenCharged READ showChargeWhenCharged WRITE setShowChargeWhenCharged
                   BINDABLE bindableShowChargeWhenCharged)
    Q_PROPERTY(bool showTimeWhenCharged READ showTimeWhenCharged WRITE setShowTimeWhenCharged
                   BINDABLE bindableShowTimeWhenCharged)

public:
    /// The process's, over the shared defaults, made on first use.
    [[nodiscard]] static DisplaySwitches &shared();

    /// The store must outlive this.
    explicit DisplaySwitches(DefaultsStore &defaults);

    [[nodiscard]] bool isOn(DisplaySwitch which) const { return m_on[index(which)].value(); }
    void set(DisplaySwitch which, bool on);
    /// Read-only: a switch is set by `set`.
    [[nodiscard]] QBindable<bool> bindable(DisplaySwitch which) const
    {
        return &m_on[index(which)];
    }

#define FERRIN_SWITCH(name, Name)                                                                  \
    [[nodiscard]] bool name() const                                                                \
    {                                                                                              \
        return isOn(DisplaySwitch::name);                                                          \
    }                                                                                              \
    void set##Name(bool on)                                                                        \
    {                                                                                              \
        set(DisplaySwitch::name, on);                                                              \
    }                                                                                              \
    [[nodiscard]] QBindable<bool> bindable##Name() const                                           \
    {                                                                                              \
        return bindable(DisplaySwitch::name);                                                      \
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
