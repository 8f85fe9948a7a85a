// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "settingswindow/settings.h"
#include "state/appstatus.h"
#include "tests/quick/stage.h"

FERRIN_USE_QML_TYPES(Ferrin_Settings)
FERRIN_USE_QML_FILES(ferrin_settingswindow)

namespace ferrin::test {

/// The settings window's views in a window, on settings that the test decides.
class SettingsStage : public SceneStage
{
public:
    explicit SettingsStage(PopoverDesktop &popovers = plainDesktop)
        : SceneStage({ "Ferrin.Settings" }, popovers)
    {
    }
    ~SettingsStage() { item.reset(); }

    AppStatus status;
    Settings settings { status, &engine };
};

} // namespace ferrin::test
