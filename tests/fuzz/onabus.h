// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

class QDBusPendingCallWatcher;

namespace ferrin::fuzz {

/// Lets everything on the buses of this thread go on until the call is answered. One that never is
/// takes longer than the fuzzer allows.
void wait(const QDBusPendingCallWatcher &call);

} // namespace ferrin::fuzz
