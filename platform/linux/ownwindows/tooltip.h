// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/ownwindows/ownwindowlook.h"
#include "popover/itemplace.h"

#include <QObject>
#include <QRasterWindow>
#include <QTimer>

#include <memory>

namespace ferrin {

/// A line of text beside the item while the pointer rests on it, where the desktop shows none.
/// Takes neither the focus nor presses.
class ToolTip final : public QObject
{
    Q_OBJECT

public:
    explicit ToolTip(QObject *parent = nullptr);
    ~ToolTip() override;

    /// Shows it at the item once the pointer has rested.
    void showSoon(const QString &text, const ItemPlace &place, const OwnWindowLook &look);
    void hide();

    /// Null while nothing is shown.
    [[nodiscard]] const QWindow *window() const;

private:
    void show();

    class Window;

    QTimer m_rest;
    QString m_text;
    ItemPlace m_place;
    OwnWindowLook m_look;
    std::unique_ptr<Window> m_window;
};

} // namespace ferrin
