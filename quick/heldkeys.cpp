// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/heldkeys.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace ferrin {

namespace {

bool actsAtEachPress(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Escape:
        return true;
    default:
        return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            != 0;
    }
}

} // namespace

HeldKeys::HeldKeys(QObject *parent)
    : QObject(parent)
{
    qGuiApp->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWindowType())
        return QObject::eventFilter(watched, event);
    const auto &press = *static_cast<const QKeyEvent *>(event);
    if (!press.isAutoRepeat() || !actsAtEachPress(press))
        return QObject::eventFilter(watched, event);
    event->accept();
    return true;
}

} // namespace ferrin
