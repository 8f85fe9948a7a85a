// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/finewheel.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>

namespace ferrin {

namespace {

constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
/// Logical pixels, as Flickable has them.
constexpr qreal lineHeight = 24;

/// Whole notches, and touchpads that tell pixels and the end of the movement, suit Flickable.
bool suitsFlickable(const QWheelEvent &turn)
{
    const bool isOfPixels = turn.phase() != Qt::NoScrollPhase && !turn.pixelDelta().isNull();
    const QPoint angle = turn.angleDelta();
    return isOfPixels || (angle.x() % notch == 0 && angle.y() % notch == 0);
}

qreal placeAfter(const QQuickItem &flickable, const char *place, const char *content, qreal seen,
                 qreal distance)
{
    const qreal last = std::max(0.0, flickable.property(content).toReal() - seen);
    return std::clamp(flickable.property(place).toReal() + distance, 0.0, last);
}

} // namespace

void FineWheel::setFlickable(QQuickItem *flickable)
{
    if (m_flickable == flickable)
        return;
    if (m_flickable)
        m_flickable->removeEventFilter(this);
    m_flickable = flickable;
    if (m_flickable)
        m_flickable->installEventFilter(this);
    Q_EMIT flickableChanged();
}

bool FineWheel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    const auto &turn = static_cast<const QWheelEvent &>(*event);
    if (suitsFlickable(turn))
        return false;
    const qreal inPixels = QGuiApplication::styleHints()->wheelScrollLines() * lineHeight / notch;
    // What is not taken goes on to the view around this one.
    event->setAccepted(scroll(-inPixels * QPointF(turn.angleDelta())));
    return true;
}

bool FineWheel::scroll(const QPointF &distance)
{
    QQuickItem &view = *m_flickable;
    const qreal x = placeAfter(view, "contentX", "contentWidth", view.width(), distance.x());
    const qreal y = placeAfter(view, "contentY", "contentHeight", view.height(), distance.y());
    if (x == view.property("contentX").toReal() && y == view.property("contentY").toReal())
        return false;
    QMetaObject::invokeMethod(&view, "cancelFlick");
    view.setProperty("contentX", x);
    view.setProperty("contentY", y);
    return true;
}

} // namespace ferrin
