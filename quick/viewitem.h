// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"
#include "quick/painteditem.h"

#include <QtQml/qqmlregistration.h>

namespace ferrin {

/// A view of the menu bar item inside a window, painted by the item's own code in the middle of
/// this item and aligned with the device's pixels. Derived classes choose the view; QML binds the
/// colours and the font. The implicit size is the view's ideal size, rounded up to whole logical
/// pixels.
class ViewItem : public ferrin::PaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor NOTIFY contextChanged)
    /// The colour of a low battery.
    Q_PROPERTY(QColor redColor READ redColor WRITE setRedColor NOTIFY contextChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily WRITE setFontFamily NOTIFY contextChanged)

public:
    explicit ViewItem(QQuickItem *parent = nullptr);

    [[nodiscard]] QColor textColor() const { return m_context.text; }
    void setTextColor(const QColor &color);
    [[nodiscard]] QColor redColor() const { return m_context.red; }
    void setRedColor(const QColor &color);
    [[nodiscard]] QString fontFamily() const { return m_context.fontFamily; }
    void setFontFamily(const QString &family);

    /// What is shown; empty for nothing.
    [[nodiscard]] const AnyView &view() const noexcept { return m_view; }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void contextChanged();

protected:
    void setView(const AnyView &view);

private:
    void setContext(const ViewContext &context);
    void measure();

    AnyView m_view;
    ViewContext m_context { .text = Qt::black, .red = Qt::red, .fontFamily = {} };
};

} // namespace ferrin
