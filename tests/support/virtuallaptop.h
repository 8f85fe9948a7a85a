// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QStringList>

namespace ferrin::test {

/// Sends a command to the virtual laptop that the test runs on, as `laptop` does, and waits until
/// it is done. That does not mean that the program under test has noticed it. Fails the test with
/// the laptop's error message when the command fails.
void tellLaptop(const QStringList &command);

} // namespace ferrin::test
