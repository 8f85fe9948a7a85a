// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateengine.h"

#include <QObject>
#include <QSocketNotifier>

namespace ferrin {

/// The other end of ProcessUpdateEngine: reads one task from the standard input, gives it to the
/// engine, writes the answers to the standard output and ends the process with the last of them, or
/// when nobody is left at the other end.
class UpdateHelper final : public QObject
{
    Q_OBJECT

public:
    /// The engine outlives this.
    explicit UpdateHelper(UpdateEngine &engine);

private:
    void readTask();
    void perform(const QByteArray &line);

    UpdateEngine &m_engine;
    QSocketNotifier m_input;
    QByteArray m_line;
};

} // namespace ferrin
