// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/programstarter.h"
#include "state/linkopener.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace ferrin {

/// Opens links with what the running desktop has for them: web pages, mails and local pages with
/// its own handler, the pane of the battery settings as its power page. Other schemes are refused.
class DesktopLinkOpener final : public LinkOpener
{
public:
    /// The names as `currentDesktopNames()` returns them. The starter outlives this.
    DesktopLinkOpener(ProgramStarter &starter, QStringList desktops);

    void open(const QUrl &link) override;

private:
    void openWithHandler(const QUrl &link);
    void openSettings(const QUrl &link);
    /// The first that starts; where none does, one log line that begins with the failure.
    void startOneOf(const QList<CommandLine> &commands, const QString &failure);

    ProgramStarter &m_starter;
    QStringList m_desktops;
};

} // namespace ferrin
