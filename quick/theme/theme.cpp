// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/theme/theme.h"

#include "state/applicationappearance.h"

namespace ferrin {

Theme::Theme(QObject *parent)
    : QObject(parent)
{
    const ApplicationAppearance *const appearance = ApplicationAppearance::shared();
    if (!appearance)
        return;
    m_isDark.setBinding([appearance] { return appearance->isDark(); });
    m_fontFamily.setBinding([appearance] { return appearance->fontFamily(); });
    m_textScale.setBinding([appearance] { return appearance->textScale(); });
    m_reducesMotion.setBinding([appearance] { return appearance->reducesMotion(); });
}

Theme *Theme::create(QQmlEngine *, QJSEngine *)
{
    return new Theme;
}

} // namespace ferrin
