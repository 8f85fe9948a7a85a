// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/programstarter.h"

#include <QList>
#include <QStringList>

namespace ferrin {

/// The installed programs that set up the power or the battery on one of these desktops: those
/// whose desktop entries have the category "Settings" and the keyword "battery" or "power", with
/// "battery" first, each of these in the order of the folders and of the names in them. Programs
/// that need a terminal are none. The folders are those that hold "applications", such as
/// "/usr/share"; an entry in an earlier one hides its namesakes. The starter knows what is
/// installed.
[[nodiscard]] QList<CommandLine> installedPowerSettings(const QStringList &dataFolders,
                                                        const QStringList &desktops,
                                                        const ProgramStarter &starter);

} // namespace ferrin
