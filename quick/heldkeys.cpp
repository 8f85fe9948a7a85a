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
    case Qt::Key_F1:
        return true;
    default:
        return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            != 0;
    }
}

} // namespace

HeldKeys::HeldKeys(bool isOnX, QObject *parent)
    : QObject(parent)
    , m_isOnX(isOnX)
{
    qGuiApp->installEventFilter(this);
}

// Qt tells a repeat by the event that follows the release in its queue: with another one in
// between, or none yet, the repeat looks like a release and a press of the user's.
bool HeldKeys::isRepeat(const QKeyEvent &press) const
{
    const bool isAtRelease = m_isOnX && press.key() == m_lastRelease.key && press.timestamp() != 0
        && press.timestamp() == m_lastRelease.time;
    return press.isAutoRepeat() || isAtRelease;
}

bool HeldKeys::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyRelease && watched->isWindowType()) {
        const auto &release = *static_cast<const QKeyEvent *>(event);
        m_lastRelease = { .key = release.key(), .time = release.timestamp() };
    }
    // Where this is accepted, no shortcut is tried.
    const bool isBeforeShortcut = type == QEvent::ShortcutOverride;
    if (!isBeforeShortcut && (type != QEvent::KeyPress || !watched->isWindowType()))
        return QObject::eventFilter(watched, event);
    const auto &press = *static_cast<const QKeyEvent *>(event);
    if (!actsAtEachPress(press) || !isRepeat(press))
        return QObject::eventFilter(watched, event);
    event->accept();
    return true;
}

} // namespace ferrin
