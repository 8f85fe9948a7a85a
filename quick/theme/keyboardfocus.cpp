// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/theme/keyboardfocus.h"

#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include <utility>

namespace ferrin {

namespace {

// Unlike an explanation, which a key may have opened beside the focus.
bool isOnItsOwn(const QWindow &window)
{
    return !window.transientParent();
}

} // namespace

KeyboardFocus::KeyboardFocus(QObject *parent)
    : QObject(parent)
{
    qGuiApp->installEventFilter(this);
}

bool KeyboardFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWindowType()) {
        followAlt(*event);
        if (event->type() == QEvent::KeyPress)
            setVisible(true);
        else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin
                 || (event->type() == QEvent::Show && isOnItsOwn(*static_cast<QWindow *>(watched))))
            setVisible(false);
    }
    return QObject::eventFilter(watched, event);
}

void KeyboardFocus::setVisible(bool visible)
{
    if (std::exchange(m_isVisible, visible) != visible)
        Q_EMIT isVisibleChanged();
}

void KeyboardFocus::followAlt(const QEvent &event)
{
    const bool isPress = event.type() == QEvent::KeyPress;
    if (isPress || event.type() == QEvent::KeyRelease) {
        if (static_cast<const QKeyEvent &>(event).key() == Qt::Key_Alt)
            setShowsMnemonics(isPress);
    } else if (event.type() == QEvent::FocusOut) {
        // The release of Alt+Tab goes to another program.
        setShowsMnemonics(false);
    }
}

void KeyboardFocus::setShowsMnemonics(bool shows)
{
    if (std::exchange(m_showsMnemonics, shows) != shows)
        Q_EMIT showsMnemonicsChanged();
}

} // namespace ferrin
