// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"
#include "platform/linux/ownbar/barplace.h"
#include "platform/linux/ownwindows/accessiblewindow.h"
#include "platform/linux/ownwindows/ownwindowlook.h"

#include <QPointer>
#include <QRasterWindow>

#include <optional>

class QScreen;

namespace ferrin {

/// The window of the own bar: on top of all but full-screen windows, in no task list, never in the
/// way of the keyboard. It stands at an edge of the screen, off the panels there, and can be
/// dragged to another. It brings its own ground, so that the content reads on any desktop. Owned by
/// its item, which remembers the place.
class OwnBarWindow final : public QRasterWindow
{
    Q_OBJECT

public:
    /// At the usual size of texts, logical pixels.
    static constexpr int contentHeight = 22;

    OwnBarWindow();

    void setContent(const ItemContent &content);
    /// Its own look, and that of its content, which belongs to it.
    void setLook(const OwnWindowLook &look, const ViewContext &context);
    /// The content's length at the usual size of texts, in logical pixels; what differs by little
    /// from the content's own width is kept, so that the bar does not jitter as digits change.
    void setContentLength(qreal length);
    void setPressed(bool pressed);

    /// Whether it follows the pointer while it is dragged, or goes to its new place at the end.
    /// Wayland's compositors do not agree on where the pointer is in a surface that moves below it.
    void setFollowing(bool isFollowing) { m_isFollowing = isFollowing; }

    /// Goes to the screen where it belongs. Call while it is hidden.
    void goToScreen();

    /// Where the user keeps it.
    void setPlace(const BarPlace &place);
    [[nodiscard]] const BarPlace &barPlace() const noexcept { return m_place; }

    /// The item's place on the desktop.
    [[nodiscard]] QRect itemBounds() const { return cell().translated(position()); }

    [[nodiscard]] QAccessibleInterface *accessibleRoot() const override
    {
        return m_accessible.root();
    }

Q_SIGNALS:
    void clicked();
    void menuRequested();
    /// The user has dragged it to another place.
    void placeChanged();
    /// It belongs on another screen from now on: the user's choice, or what is left.
    void screenChosen();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool event(QEvent *event) override;

private:
    [[nodiscard]] QSize idealSize() const;
    /// Where the item is in the window: all of it, or its right-hand end where the window manager
    /// has made it a strip.
    [[nodiscard]] QRect cell() const;
    [[nodiscard]] QColor groundColor() const;
    [[nodiscard]] QScreen *chosenScreen() const;
    void place();
    void followScreen();
    void dropAt(const QRect &frame);
    void setHovered(bool hovered);

    AnyView m_view;
    QString m_words;
    OwnWindowLook m_look;
    ViewContext m_context;
    qreal m_length = 0;
    bool m_isPressed = false;
    bool m_isHovered = false;
    BarPlace m_place;
    /// Where in the window the left button went down; absent while it is up.
    std::optional<QPoint> m_pressedAt;
    bool m_isDragged = false;
    bool m_isFollowing = true;
    QPointer<QScreen> m_followed;
    AccessibleWindow m_accessible;
};

} // namespace ferrin
