// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// A library that is loaded while a test runs, as the windows are.

extern "C" int spare_answer()
{
    return 42;
}
