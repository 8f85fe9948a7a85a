// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QPointer>
#include <QQuickItem>

class QWheelEvent;

namespace ferrin {

/// Scrolls a Flickable by fine turns of a wheel, and by two fingers on a touchpad of X11, as far in
/// all as by the same turn in whole notches. Flickable alone takes each event for a throw of its
/// own, whose distance shrinks with the square of the turn: of fine turns hardly anything is left.
class FineWheel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *flickable READ flickable WRITE setFlickable NOTIFY flickableChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem *flickable() const noexcept { return m_flickable; }
    void setFlickable(QQuickItem *flickable);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void flickableChanged();

private:
    /// False where there is no further to go.
    bool scroll(const QPointF &distance);

    QPointer<QQuickItem> m_flickable;
};

} // namespace ferrin
