// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import Ferrin.Quick

// The window of updates in the desktop's size of texts.
GrowingScene {
    content: UpdateView {
        focus: true
    }
}
