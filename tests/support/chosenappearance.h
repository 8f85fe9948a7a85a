// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/applicationappearance.h"

namespace ferrin::test {

/// An appearance that the test sets; light by default.
class ChosenAppearance final : public ApplicationAppearance
{
public:
    ChosenAppearance() { m_fontFamily = QStringLiteral("DejaVu Sans"); }

    void setAppearance(std::optional<Appearance> appearance) override
    {
        m_isDark = appearance == Appearance::dark;
        forced = appearance;
    }
    void setFontFamily(const QString &family) { m_fontFamily = family; }
    void setTextScale(double scale) { m_textScale = scale; }
    void setReducesMotion(bool reduces) { m_reducesMotion = reduces; }
    void setAccent(const std::optional<AccentColor> &accent) { m_accent = accent; }
    void setHighContrast(bool isHigh) { m_isHighContrast = isHigh; }

    /// The last value that was set; absent follows the desktop.
    std::optional<Appearance> forced;
};

} // namespace ferrin::test
