// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace ferrin {

/// A colour as panels' configuration files write it: "#rgb", "#rrggbb", "#rrggbbaa", "rgb(1, 2,
/// 3)", "rgba(1, 2, 3, 50%)", "1,2,3" or the name of a colour. Absent for anything else.
[[nodiscard]] std::optional<QColor> colorIn(const QString &text);

/// An opacity, 0 to 1: "50%", "0.5" or, as Qt's style sheets have it too, "128" of 255.
[[nodiscard]] float opacityIn(const QString &text);

} // namespace ferrin
