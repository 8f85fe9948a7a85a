// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <sys/types.h>
#include <utility>

namespace ferrin {

/// The file that this process runs, which a package manager may replace meanwhile. To watch it
/// costs nothing until that happens. Owned by `main`; it decides nothing.
class ProgramFile final : public QObject
{
    Q_OBJECT

public:
    /// What the event loop ends with when the process is to go on as the new program.
    static constexpr int startsAnew = 75;
    /// An upgrade puts its files into their places within less.
    static constexpr std::chrono::seconds usualRest { 10 };

    explicit ProgramFile(QString path, std::chrono::milliseconds rest = usualRest);

    /// Another program stands in its place. What is loaded from now on may not fit this one.
    [[nodiscard]] bool isReplaced() const;

    /// Puts the program of this path into the place of the process, which has let go of all that it
    /// held. Returns only when that is not possible.
    static void startAnew(const QString &path, char **arguments);

Q_SIGNALS:
    /// Another program stands there, and nothing has stirred for a while. Told again after each
    /// such while.
    void replaced();

private:
    using Identity = std::pair<dev_t, ino_t>;

    [[nodiscard]] static Identity identityOf(const QString &path);
    void tellIfReplaced();

    QString m_path;
    Identity m_identity;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
};

} // namespace ferrin
