// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/programstarter.h"
#include "state/linkopener.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace ferrin {

/// Opens links with the programs of the running desktop: web pages, mails and local pages with its
/// handler; the pane of the battery settings as the desktop's power page, or, where none is known,
/// with an installed program that sets up the battery or the power. Other schemes are refused.
class DesktopLinkOpener final : public LinkOpener
{
public:
    /// The names as `currentDesktopNames()` returns them; the folders that hold "applications", the
    /// most important first. The starter outlives this.
    DesktopLinkOpener(ProgramStarter &starter, QStringList desktops, QStringList dataFolders);

    bool open(const QUrl &link) override;

private:
    [[nodiscard]] bool openWithHandler(const QUrl &link);
    [[nodiscard]] bool openSettings(const QUrl &link);
    /// Starts the first that can be started. Where none can, logs one line that begins with the
    /// failure.
    [[nodiscard]] bool startOneOf(const QList<CommandLine> &commands, const QString &failure);

    ProgramStarter &m_starter;
    QStringList m_desktops;
    QStringList m_dataFolders;
};

} // namespace ferrin
