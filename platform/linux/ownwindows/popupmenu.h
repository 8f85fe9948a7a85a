// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/layers/layeredwindows.h"
#include "platform/linux/layers/waylandpresswatcher.h"
#include "platform/linux/ownwindows/accessiblewindow.h"
#include "platform/linux/ownwindows/ownwindowlook.h"

#include <QRasterWindow>

#include <functional>
#include <vector>

namespace ferrin {

/// A small menu of our own, for the hosts that leave the menu to the item and for the own bar.
/// Closes by itself when an entry is chosen, at Escape, and at a click elsewhere.
class PopupMenu final : public QRasterWindow
{
    Q_OBJECT

public:
    PopupMenu();

    /// Opens at the pointer, wholly on its screen; below the place, or above it near the bottom.
    void popUp(const std::vector<MenuEntry> &entries, QPoint at, const OwnWindowLook &look);

    /// Opens beside the item, off it.
    void popUpAt(const std::vector<MenuEntry> &entries, const QRect &item,
                 const OwnWindowLook &look);

    [[nodiscard]] QAccessibleInterface *accessibleRoot() const override
    {
        return m_accessible.root();
    }

Q_SIGNALS:
    void triggered(const QString &id);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;

private:
    void open(const std::vector<MenuEntry> &entries, const OwnWindowLook &look, QPoint screenAt,
              const std::function<QPoint(QSize, const QRect &)> &place);
    [[nodiscard]] QFont entryFont() const;
    [[nodiscard]] QSize idealSize() const;
    [[nodiscard]] QRect entryBounds(int entry) const;
    [[nodiscard]] int entryAt(QPoint position) const;
    [[nodiscard]] std::vector<AccessiblePart> parts();
    void setCurrent(int entry);
    void choose(int entry);
    void grabInput(int attemptsLeft);

    std::vector<MenuEntry> m_entries;
    OwnWindowLook m_look;
    /// The highlighted entry, -1 for none.
    int m_current = -1;
    bool m_hasGrab = false;
    LayeredWindows m_layers;
    WaylandPressWatcher m_presses;
    AccessibleWindow m_accessible;
};

/// The place for a window of this size near a point: below and to the right, unless that leaves
/// `available`.
[[nodiscard]] QPoint placeNear(QPoint point, QSize size, const QRect &available);

/// The place for a window of this size beside an item: below it, or above one in the lower half of
/// `available`, and wholly inside of that.
[[nodiscard]] QPoint placeBeside(const QRect &item, QSize size, const QRect &available);

} // namespace ferrin
