// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/bindable.h"

#include <QObject>
#include <QProperty>
#include <QString>

#include <optional>
#include <span>

namespace ferrin {

class DefaultsStore;

/// The user's choice of appearance: `system` follows the desktop, the others do not.
enum class AppColorScheme { system, light, dark };

/// The three schemes in the order of the settings page.
[[nodiscard]] std::span<const AppColorScheme> allAppColorSchemes();

/// The text that is stored and shown: "System", "Light", "Dark".
[[nodiscard]] QString rawValue(AppColorScheme scheme);

/// Absent when the text is none of the three.
[[nodiscard]] std::optional<AppColorScheme> appColorSchemeFromRawValue(QStringView rawValue);

/// The stored choice. Anything in the store but one of the three texts reads as `system`; reading
/// writes nothing. It applies nothing: that is AppColorSchemeProvider's. One instance serves the
/// process.
class AppColor : public QObject
{
    Q_OBJECT

public:
    /// The process's, over the shared defaults, made on first use.
    [[nodiscard]] static AppColor &shared();

    /// The store must outlive this.
    explicit AppColor(DefaultsStore &defaults);

    [[nodiscard]] AppColorScheme scheme() const { return m_scheme; }
    void setScheme(AppColorScheme scheme);
    [[nodiscard]] Bindable<AppColorScheme> bindableScheme() const { return &m_scheme; }

private:
    void readFromStore();

    DefaultsStore &m_defaults;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppColor, AppColorScheme, m_scheme, AppColorScheme::system)
};

} // namespace ferrin
