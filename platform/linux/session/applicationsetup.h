// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

class QProcessEnvironment;

namespace ferrin {

/// What must be decided before the application object is made. Qt loads no desktop's platform
/// theme: what it would tell comes from the settings portal at a fraction of the cost. A theme that
/// the user's environment names is loaded all the same. On Wayland Qt leaves windows alone that are
/// to show in the desktop's layers.
void setUpApplication();

/// The environment for another program, which has nothing to do with how this one is set up.
void withoutSetUp(QProcessEnvironment &environment);

} // namespace ferrin
