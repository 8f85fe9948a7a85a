// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appcolorschemeprovider.h"

#include "state/applicationappearance.h"

#include <QtGlobal>

namespace ferrin {

void AppColorSchemeProvider::apply(AppColorScheme scheme) const
{
    ApplicationAppearance *const application = ApplicationAppearance::shared();
    if (!application)
        qFatal("A colour scheme was applied before the application had started");
    switch (scheme) {
    case AppColorScheme::system:
        application->setAppearance(std::nullopt);
        return;
    case AppColorScheme::light:
        application->setAppearance(Appearance::light);
        return;
    case AppColorScheme::dark:
        application->setAppearance(Appearance::dark);
        return;
    }
}

} // namespace ferrin
