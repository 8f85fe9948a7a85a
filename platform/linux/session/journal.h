// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArrayList>

namespace ferrin {

/// Whether systemd's journal runs here; never in a build without systemd.
[[nodiscard]] bool isJournalRunning();

/// Sends an entry of these fields ("NAME=value"). False when it was not taken.
[[nodiscard]] bool sendToJournal(QByteArrayList fields);

} // namespace ferrin
