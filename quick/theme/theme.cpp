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
    bindableIsDark().setBinding(appearance->bindableIsDark().makeBinding());
    bindableFontFamily().setBinding(appearance->bindableFontFamily().makeBinding());
    bindableReducesMotion().setBinding(appearance->bindableReducesMotion().makeBinding());
}

Theme *Theme::create(QQmlEngine *, QJSEngine *)
{
    return new Theme;
}

} // namespace ferrin
