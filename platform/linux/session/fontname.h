// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <optional>

namespace ferrin {

/// The family in a font name as GNOME and its kin write it: "Noto Sans Bold 10", "Sans, 11". Empty
/// when there is none.
[[nodiscard]] QString familyOfPangoName(const QString &name);

/// The size at its end, in points; absent when there is none or it is no size of a text.
[[nodiscard]] std::optional<double> pointSizeOfPangoName(const QString &name);

/// The family in a font name as KDE writes it: "Noto Sans,10,-1,5,50,0,0,0,0,0".
[[nodiscard]] QString familyOfQtName(const QString &name);

/// The size in such a name, in points; absent when there is none or it is no size of a text.
[[nodiscard]] std::optional<double> pointSizeOfQtName(const QString &name);

} // namespace ferrin
