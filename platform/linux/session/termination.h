// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>

class QDBusConnection;
class QSocketNotifier;

namespace ferrin {

/// Ends the event loop, with 0, when the process is asked to end (SIGTERM, SIGINT, SIGHUP) or the
/// session's bus goes away. A second signal of the same kind ends the process at once, in case the
/// first finds nobody listening. There is one, owned by the application; it closes nothing itself.
class Termination : public QObject
{
    Q_OBJECT

public:
    /// The session may be unconnected; then the signals alone count.
    explicit Termination(const QDBusConnection &session, QObject *parent = nullptr);
    ~Termination() override;

private:
    void listenToSignals();
    Q_SLOT void sessionEnded();

    QSocketNotifier *m_notifier = nullptr;
};

} // namespace ferrin
