// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

namespace ferrin {

/// The sections of the dashboard, in menu order.
enum class DashboardMenuButton { status, health, adapter, settings };

/// The sections of the settings window, in menu order; `quit` ends the program.
enum class SettingsMenuButton { general, icon, support, about, quit };

/// The appearance of a menu button of either window.
enum class ButtonState { selected, hovered, none };

[[nodiscard]] QString rawValue(DashboardMenuButton button);
[[nodiscard]] QString rawValue(SettingsMenuButton button);

} // namespace ferrin
