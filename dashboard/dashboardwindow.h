// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QQuickView>

namespace ferrin {

/// The popover under the status item. Made when it opens and dropped when it closes; it closes by
/// itself on Escape and when it loses the focus, and then says so.
class DashboardWindow final : public QQuickView
{
    Q_OBJECT

public:
    /// The engine outlives it.
    explicit DashboardWindow(QQmlEngine &engine);

    /// Shows the popover beside the item, wholly inside the item's screen. Either place may be
    /// null.
    void openAt(const QRect &item, const QPoint &pointer);

Q_SIGNALS:
    void dismissed();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace ferrin
