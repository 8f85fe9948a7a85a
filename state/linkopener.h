// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

class QUrl;

namespace ferrin {

/// Opens links outside of the application: web pages, mails to write, local pages, and the
/// desktop's own settings by "x-apple.systempreferences:" and a pane's identifier. The platform
/// implements it.
class LinkOpener
{
public:
    virtual ~LinkOpener() = default;

    /// Does not wait for the program that shows the link. A link that cannot be opened costs one
    /// log line; one that is invalid does nothing.
    virtual void open(const QUrl &link) = 0;
};

} // namespace ferrin
