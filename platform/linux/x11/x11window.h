// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

class QWindow;

namespace ferrin {

/// Makes the created window a dock to an X11 window manager: above others, on every desktop, in no
/// list and never focused. Does nothing elsewhere.
void makeDock(QWindow &window);

} // namespace ferrin
