// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

namespace ferrin::test {

/// How often a test kills a process at a random moment: FERRIN_TEST_KILLS=1000 for more than usual.
inline int killsOr(int usual)
{
    const int wanted = qEnvironmentVariableIntValue("FERRIN_TEST_KILLS");
    return wanted > 0 ? wanted : usual;
}

} // namespace ferrin::test
