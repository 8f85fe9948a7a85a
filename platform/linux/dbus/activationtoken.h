// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

namespace ferrin {

/// Keeps what lets the next window come to the front on Wayland, where Qt looks for it: in the
/// process's environment. False for a text that can be no token: anybody on the bus may send one.
bool keepActivationToken(const QString &token);

void forgetActivationToken();

} // namespace ferrin
