// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

class QUrl;

namespace ferrin {

/// Opens links outside of the application: web pages, mails to write, local pages, and a pane of
/// the desktop's own settings by "x-apple.systempreferences:" and the pane's identifier. The
/// platform implements it.
class LinkOpener
{
public:
    virtual ~LinkOpener() = default;

    /// Starts the program that shows the link and does not wait for it. An invalid link is ignored.
    /// False if nothing on this desktop shows the link, which is logged in one line.
    virtual bool open(const QUrl &link) = 0;
};

} // namespace ferrin
