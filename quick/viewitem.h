// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace ferrin {

/// A view of the menu bar as a picture in a window: the very view, painted in the middle of its
/// frame for the pixels that it lands on. Which view it is, is the business of whoever derives from
/// it; colours and font are bound in QML. Its implicit size is the view's own in whole pixels.
class ViewItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor NOTIFY contextChanged)
    /// Of a low battery.
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
