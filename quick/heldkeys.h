// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>

class QKeyEvent;

namespace ferrin {

/// Makes a held key act once. While it exists, the repeats of a key that presses or closes
/// something (Return, Enter, Space, Escape, F1, and every combination with Ctrl, Alt or Meta) reach
/// none of the application's windows; otherwise a switch would flip again and again, and a button
/// that gets the focus meanwhile would be pressed. Keys that move or scroll go on repeating. Qt
/// does not know every repeat of an X server for one: a press at the very time of the release is
/// one, too.
class HeldKeys final : public QObject
{
    Q_OBJECT

public:
    /// `isOnX`: the keys come from an X server.
    explicit HeldKeys(bool isOnX, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Release
    {
        int key = 0;
        /// The display server's time, milliseconds.
        quint64 time = 0;
    };

    [[nodiscard]] bool isRepeat(const QKeyEvent &press) const;

    bool m_isOnX;
    Release m_lastRelease;
};

} // namespace ferrin
