// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"
#include "platform/linux/statusarea/accessiblewindow.h"

#include <QPointer>
#include <QRasterWindow>

class QScreen;

namespace ferrin {

/// The window of the own bar: always on top, in no task list, never in the way of the keyboard. It
/// brings its own ground, so that the content reads on any desktop. Owned by its item.
class OwnBarWindow final : public QRasterWindow
{
    Q_OBJECT

public:
    static constexpr int contentHeight = 22;

    OwnBarWindow();

    void setContent(const ItemContent &content);
    void setColours(const ViewContext &context, bool isDark);
    /// The content's length in logical pixels; what differs by little from the content's own width
    /// is kept, so that the bar does not jitter as digits change.
    void setContentLength(qreal length);
    void setPressed(bool pressed);

    [[nodiscard]] QAccessibleInterface *accessibleRoot() const override
    {
        return m_accessible.root();
    }

Q_SIGNALS:
    void clicked();
    void menuRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool event(QEvent *event) override;

private:
    [[nodiscard]] QSize idealSize() const;
    [[nodiscard]] QColor groundColour() const;
    void place();
    void followScreen();
    void setHovered(bool hovered);

    AnyView m_view;
    QString m_words;
    ViewContext m_context;
    qreal m_length = 0;
    bool m_isDark = false;
    bool m_isPressed = false;
    bool m_isHovered = false;
    QPointer<QScreen> m_followed;
    AccessibleWindow m_accessible;
};

} // namespace ferrin
