// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/settingsmbiselectedmockupview.h"

namespace ferrin {

void SettingsMBISelectedMockupView::setChoices(StateChoices *choices)
{
    if (m_choices == choices)
        return;
    if (m_choices)
        m_choices->disconnect(this);
    m_choices = choices;
    if (m_choices)
        connect(m_choices, &StateChoices::previewChanged, this,
                &SettingsMBISelectedMockupView::showPreview);
    showPreview();
    Q_EMIT choicesChanged();
}

void SettingsMBISelectedMockupView::showPreview()
{
    setView(m_choices ? viewFor(m_choices->preview()) : AnyView());
}

} // namespace ferrin
