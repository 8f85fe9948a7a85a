// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>

namespace ferrin {

/// Makes a held key act once. While it exists, the repeats of a key that presses or closes
/// something (Return, Enter, Space, Escape, and every combination with Ctrl, Alt or Meta) reach
/// none of the application's windows; otherwise a switch would flip again and again, and a button
/// that gets the focus meanwhile would be pressed. Keys that move or scroll go on repeating.
class HeldKeys final : public QObject
{
    Q_OBJECT

public:
    explicit HeldKeys(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace ferrin
