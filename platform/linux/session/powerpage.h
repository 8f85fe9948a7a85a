// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/programstarter.h"

#include <QList>
#include <QStringList>

namespace ferrin {

/// The programs that show the power page of the desktop with these names, as
/// `currentDesktopNames()` returns them, the best one first. Empty where no page is known.
[[nodiscard]] QList<CommandLine> powerPagesOf(const QStringList &desktops);

} // namespace ferrin
