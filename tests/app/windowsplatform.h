// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "app/windows.h"
#include "menubar/popoverdesktop.h"
#include "settingswindow/linkopener.h"
#include "tests/settingswindow/fakeloginitem.h"

#include <QUrl>

namespace ferrin::test {

/// Remembers the links that it was to open.
class FakeLinkOpener final : public LinkOpener
{
public:
    void open(const QUrl &link) override { opened.append(link); }

    QList<QUrl> opened;
};

/// A desktop for the windows of which the test decides everything.
struct FakeWindowsPlatform
{
    [[nodiscard]] WindowsPlatform all() { return { popovers, loginItem, links }; }

    PopoverDesktop popovers;
    FakeLoginItem loginItem;
    FakeLinkOpener links;
};

} // namespace ferrin::test
