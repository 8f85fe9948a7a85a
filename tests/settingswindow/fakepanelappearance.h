// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/panelappearance.h"

namespace ferrin::test {

/// A panel as the test has it.
class FakePanelAppearance final : public PanelAppearanceSource
{
public:
    [[nodiscard]] std::optional<PanelAppearance> panelAppearance() const override
    {
        return m_present;
    }

    void setPresent(const std::optional<PanelAppearance> &appearance)
    {
        m_present = appearance;
        Q_EMIT panelAppearanceChanged();
    }

private:
    std::optional<PanelAppearance> m_present;
};

} // namespace ferrin::test
