// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>

namespace ferrin {

/// The colour of text on a host's panel by the host's own files. Follows the files while
/// they change. Reads nothing before `start`, writes nothing ever.
class FileColors : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void start();
    /// Reads the files again. Files that are written anew are noticed without.
    void refresh();

    /// Absent until the start, and where the files do not say.
    [[nodiscard]] const std::optional<QColor> &text() const noexcept { return m_text; }

    /// Whether the files leave open what the panel looks like, so that nothing else may be assumed.
    [[nodiscard]] virtual bool isUncertain() const { return false; }

Q_SIGNALS:
    void changed();

protected:
    /// All that the colour depends on, whether or not they are there.
    [[nodiscard]] virtual QStringList files() const = 0;
    [[nodiscard]] virtual std::optional<QColor> readText() const = 0;

private:
    QFileSystemWatcher m_files;
    QTimer m_settling;
    bool m_isStarted = false;
    std::optional<QColor> m_text;
};

} // namespace ferrin
