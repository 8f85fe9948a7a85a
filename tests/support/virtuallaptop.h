// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QStringList>

namespace ferrin::test {

/// Tells the virtual laptop that the test runs on to do something, as `laptop` does, and waits
/// until it is done. Whether the program under test has noticed is another matter. Fails the test
/// with what the laptop said when it cannot.
void tellLaptop(const QStringList &command);

} // namespace ferrin::test
