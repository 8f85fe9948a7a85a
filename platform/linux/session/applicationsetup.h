// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

namespace ferrin {

/// What must be decided before the application object is made: Qt loads no desktop's platform
/// theme. What it would tell comes from the settings portal at a fraction of the cost. A theme that
/// the user's environment names is loaded all the same.
void setUpApplication();

} // namespace ferrin
