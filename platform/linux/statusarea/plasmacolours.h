// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

namespace ferrin {

/// The colour of text on Plasma's panel, as Plasma's own settings tell: that of the panel's theme,
/// or, where the theme leaves the colours to the user, that of the user's colour scheme. Follows
/// them while they change. Reads nothing before `start`.
class PlasmaColours : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void start();
    /// Reads the settings again. Files that are written anew are noticed without.
    void refresh();

    /// Absent until the start.
    [[nodiscard]] const std::optional<QColor> &text() const noexcept { return m_text; }

Q_SIGNALS:
    void changed();

private:
    QFileSystemWatcher m_files;
    QTimer m_settling;
    bool m_isStarted = false;
    std::optional<QColor> m_text;
};

} // namespace ferrin
