// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "app/windows.h"
#include "popover/popoverdesktop.h"
#include "tests/settingswindow/fakelinkopener.h"
#include "tests/settingswindow/fakeloginitem.h"
#include "tests/settingswindow/fakepanelappearance.h"

namespace ferrin::test {

/// A desktop for the windows of which the test decides everything.
struct FakeWindowsPlatform
{
    [[nodiscard]] WindowsPlatform all() { return { popovers, panel, loginItem, links, {} }; }

    PopoverDesktop popovers;
    FakePanelAppearance panel;
    FakeLoginItem loginItem;
    FakeLinkOpener links;
};

} // namespace ferrin::test
