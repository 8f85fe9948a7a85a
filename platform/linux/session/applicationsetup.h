// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QStringList>

class QProcessEnvironment;

namespace ferrin {

/// What must be decided before the application object is made. Qt loads no desktop's platform
/// theme: what that would provide comes from the settings portal at a fraction of the cost. A theme
/// that the user's environment names is loaded all the same. On Wayland Qt leaves windows alone
/// that are to show in the desktop's layers.
void setUpApplication();

/// The direction of a desktop whose user prefers these languages, the best first: the script of
/// the best one.
[[nodiscard]] Qt::LayoutDirection layoutDirectionFor(const QStringList &languages);

/// Mirrors the application on a desktop that reads from right to left, on which all else is
/// mirrored, too. By itself Qt would only mirror a program with a translation. Call once the
/// application object is made.
void followLayoutDirection();

/// Says in the log when Qt runs on X11 in a Wayland session because its plugin is not among
/// Qt's plugins. Call once the application object is made.
void logMissingWaylandPlugin(const QString &pluginFolder);

/// The environment for another program, which has nothing to do with how this one is set up.
void withoutSetUp(QProcessEnvironment &environment);

} // namespace ferrin
