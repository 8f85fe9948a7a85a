// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/popoverwindow.h"

#include "base/logging.h"
#include "popover/popoverdesktop.h"
#include "quick/framedwindow.h"
#include "quick/quickengine.h"

#include <QKeyEvent>
#include <QScreen>

#include <utility>

namespace ferrin {

namespace {

QPointer<PopoverWindow> openOne;

} // namespace

PopoverWindow::PopoverWindow(QObject *parent)
    : QObject(parent)
{
}

PopoverWindow::~PopoverWindow()
{
    delete m_window.data();
}

void PopoverWindow::setAnchor(QQuickItem *anchor)
{
    if (m_anchor == anchor)
        return;
    close();
    m_anchor = anchor;
    Q_EMIT anchorChanged();
}

void PopoverWindow::setContent(QQmlComponent *content)
{
    if (m_content == content)
        return;
    close();
    m_content = content;
    Q_EMIT contentChanged();
}

void PopoverWindow::setTitle(const QString &title)
{
    if (std::exchange(m_title, title) == title)
        return;
    if (m_window)
        m_window->setTitle(title);
    Q_EMIT titleChanged();
}

void PopoverWindow::open()
{
    QQuickWindow *const parent = m_anchor ? m_anchor->window() : nullptr;
    auto *const engine = qobject_cast<QuickEngine *>(qmlEngine(this));
    if (m_window || !m_content || !engine || !parent || !parent->isVisible())
        return;
    auto window = std::make_unique<FramedWindow>(*engine);
    // All the flags that a tool tip has on X11: if one were missing, Qt would create the native
    // window again when it is shown, without its outline.
    window->setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                     | Qt::X11BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus);
    window->setTitle(m_title);
    window->setTransientParent(parent);
    window->setScreen(parent->screen());
    if (!fill(*window))
        return;
    if (openOne)
        openOne->close();
    openOne = this;
    m_window = window.release();
    follow(*parent);
    place();
    m_window->desktop().prepare(*m_window);
    m_window->show();
    Q_EMIT shownChanged();
    Q_EMIT opened();
}

bool PopoverWindow::fill(FramedWindow &window)
{
    QQmlContext *const context = m_content->creationContext();
    std::unique_ptr<QObject> made(m_content->create(context ? context : qmlContext(this)));
    if (!qobject_cast<QQuickItem *>(made.get())) {
        qCCritical(logger, "A popover has no content: %s",
                   qUtf8Printable(m_content->errorString()));
        return false;
    }
    window.setContent(std::unique_ptr<QQuickItem>(static_cast<QQuickItem *>(made.release())));
    return true;
}

void PopoverWindow::follow(QQuickWindow &parent)
{
    parent.installEventFilter(this);
    connect(m_window, &FramedWindow::contentSizeChanged, this, &PopoverWindow::place);
    // These outlive the window, and this may end before it is deleted.
    connect(&parent, &QWindow::visibleChanged, this, &PopoverWindow::close, Qt::UniqueConnection);
    connect(m_anchor, &QQuickItem::visibleChanged, this, &PopoverWindow::close,
            Qt::UniqueConnection);
    connect(m_anchor, &QQuickItem::windowChanged, this, &PopoverWindow::close,
            Qt::UniqueConnection);
}

void PopoverWindow::place()
{
    if (!m_window || !m_anchor || !m_window->screen())
        return;
    const QRectF inScene = m_anchor->mapRectToScene(m_anchor->boundingRect());
    const QRect part(m_anchor->window()->mapToGlobal(inScene.topLeft()).toPoint(),
                     inScene.size().toSize());
    m_window->place(
        spotAtPart(part, m_window->contentSize(), m_window->screen()->availableGeometry()),
        FramedWindow::ArrowUse::With);
}

void PopoverWindow::close()
{
    if (!m_window)
        return;
    // An event of its own may be what closes it.
    FramedWindow *const window = std::exchange(m_window, nullptr);
    if (QWindow *const parent = window->transientParent())
        parent->removeEventFilter(this);
    window->disconnect(this);
    window->hide();
    window->deleteLater();
    Q_EMIT shownChanged();
    Q_EMIT closed();
}

bool PopoverWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        close();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        Q_EMIT pressedElsewhere();
        close();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ferrin
