// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/filecolors.h"

#include <QFileInfo>

#include <chrono>
#include <utility>

namespace ferrin {

namespace {

// A file that is replaced is reported several times, for the old file and for the new one; watched
// anew before that is over, the new one would be missed.
constexpr std::chrono::milliseconds settlingTime { 100 };

} // namespace

void FileColors::start()
{
    if (std::exchange(m_isStarted, true)) {
        refresh();
        return;
    }
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingTime);
    connect(&m_settling, &QTimer::timeout, this, &FileColors::refresh);
    connect(&m_files, &QFileSystemWatcher::fileChanged, &m_settling, qOverload<>(&QTimer::start));
    refresh();
}

void FileColors::refresh()
{
    if (!m_isStarted)
        return;
    // A file that was replaced is no longer watched, though the watcher may name it; one that is
    // new has not been.
    if (const QStringList watched = m_files.files(); !watched.isEmpty())
        m_files.removePaths(watched);
    const QStringList wanted = files();
    for (const QString &file : wanted) {
        if (QFileInfo::exists(file))
            m_files.addPath(file);
    }
    const std::optional<QColor> text = readText();
    if (std::exchange(m_text, text) != text)
        Q_EMIT changed();
}

} // namespace ferrin
