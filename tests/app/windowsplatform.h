// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "app/windows.h"
#include "popover/popoverdesktop.h"
#include "tests/settingswindow/fakelinkopener.h"
#include "tests/settingswindow/fakeloginitem.h"
#include "tests/settingswindow/fakepanelappearance.h"

namespace ferrin::test {

/// A desktop on which windows stand where they ask to, or where it likes.
struct FakePopoverDesktop final : PopoverDesktop
{
    [[nodiscard]] bool placesWindows() const override { return places; }

    bool places = true;
};

/// A desktop for the windows of which the test decides everything.
struct FakeWindowsPlatform
{
    [[nodiscard]] WindowsPlatform all() { return { popovers, panel, loginItem, links, {} }; }

    FakePopoverDesktop popovers;
    FakePanelAppearance panel;
    FakeLoginItem loginItem;
    FakeLinkOpener links;
};

} // namespace ferrin::test
