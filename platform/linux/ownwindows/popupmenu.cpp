// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownwindows/popupmenu.h"

#include "popover/popoverplacement.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace ferrin {

namespace {

constexpr int rowHeight = 28;
constexpr int margin = 5;
constexpr int textInset = 12;
constexpr int narrowest = 140;
constexpr int fontPixelSize = 13;
constexpr qreal rowRadius = 4;

} // namespace

PopupMenu::PopupMenu()
    : m_accessible(*this, QAccessible::PopupMenu, [this] { return parts(); })
{
    setFlags(Qt::Popup | Qt::FramelessWindowHint);
    setTitle(QGuiApplication::applicationDisplayName());
    connect(&m_presses, &PressWatcher::pressed, this, &QWindow::hide);
}

void PopupMenu::popUp(const std::vector<MenuEntry> &entries, const ItemPlace &place,
                      const OwnWindowLook &look)
{
    const std::optional<ScreenArea> screen = screenAreaOf(place);
    if (entries.empty() || !screen)
        return;
    m_entries = entries;
    m_look = look;
    m_current = -1;
    const QSize size = idealSize();
    // Tiling Wayland compositors leave a window of one size alone.
    setMinimumSize(size);
    setMaximumSize(size);
    setGeometry(spotAtItem(place, size, *screen).frame);
    m_layers.prepare(*this, LayerShell::Kind::Popover);
    show();
    requestActivate();
    // In a layer it has the keyboard until it is hidden.
    if (m_layers.contains(this))
        m_presses.start();
    // Elsewhere the desktop itself sends a menu away when something else comes into focus.
    constexpr int grabAttempts = 10;
    if (QGuiApplication::platformName() == u"xcb")
        grabInput(grabAttempts);
}

void PopupMenu::grabInput(int attemptsLeft)
{
    // The host may still hold the pointer for the click that brought us here.
    if (!isVisible() || attemptsLeft == 0)
        return;
    m_hasGrab = setMouseGrabEnabled(true) && setKeyboardGrabEnabled(true);
    if (m_hasGrab)
        return;
    QTimer::singleShot(50ms, this, [this, attemptsLeft] { grabInput(attemptsLeft - 1); });
}

QSize PopupMenu::idealSize() const
{
    const QFontMetrics metrics(m_look.font(fontPixelSize));
    const int beside = 2 * (margin + m_look.scaled(textInset));
    int width = m_look.scaled(narrowest);
    for (const MenuEntry &entry : m_entries)
        width = std::max(width, metrics.horizontalAdvance(entry.title) + beside);
    return { width, int(m_entries.size()) * m_look.scaled(rowHeight) + 2 * margin };
}

QRect PopupMenu::entryBounds(int entry) const
{
    const int height = m_look.scaled(rowHeight);
    return { margin, margin + entry * height, width() - 2 * margin, height };
}

int PopupMenu::entryAt(QPoint position) const
{
    for (int entry = 0; std::cmp_less(entry, m_entries.size()); ++entry) {
        if (entryBounds(entry).contains(position))
            return entry;
    }
    return -1;
}

std::vector<AccessiblePart> PopupMenu::parts()
{
    std::vector<AccessiblePart> result;
    for (int entry = 0; std::cmp_less(entry, m_entries.size()); ++entry)
        result.push_back({ .role = QAccessible::MenuItem,
                           .name = m_entries[size_t(entry)].title,
                           .bounds = entryBounds(entry),
                           .isFocused = entry == m_current,
                           .press = [this, entry] { choose(entry); } });
    return result;
}

void PopupMenu::paintEvent(QPaintEvent *)
{
    const OwnWindowColors colors = colorsFor(m_look);
    QPainter painter(this);
    painter.fillRect(QRect(QPoint(), size()), colors.border);
    painter.fillRect(QRect(QPoint(), size()).adjusted(1, 1, -1, -1), colors.ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_look.font(fontPixelSize));
    const int inset = m_look.scaled(textInset);
    // By the layout, whatever direction a text itself has.
    const int side = QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    for (int entry = 0; std::cmp_less(entry, m_entries.size()); ++entry) {
        const QRect bounds = entryBounds(entry);
        if (entry == m_current) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colors.highlight);
            painter.drawRoundedRect(bounds, rowRadius, rowRadius);
        }
        painter.setPen(entry == m_current ? colors.highlightedText : colors.text);
        painter.drawText(bounds.adjusted(inset, 0, -inset, 0),
                         side | Qt::AlignAbsolute | Qt::AlignVCenter,
                         m_entries[size_t(entry)].title);
    }
}

void PopupMenu::setCurrent(int entry)
{
    if (std::exchange(m_current, entry) == entry)
        return;
    update();
    if (entry >= 0)
        m_accessible.focused(entry);
}

void PopupMenu::choose(int entry)
{
    hide();
    if (entry >= 0 && std::cmp_less(entry, m_entries.size()))
        Q_EMIT triggered(m_entries[size_t(entry)].id);
}

void PopupMenu::mouseMoveEvent(QMouseEvent *event)
{
    setCurrent(entryAt(event->position().toPoint()));
}

void PopupMenu::mousePressEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    if (QRect(QPoint(), size()).contains(position))
        setCurrent(entryAt(position));
    else
        hide();
}

void PopupMenu::mouseReleaseEvent(QMouseEvent *event)
{
    const int entry = entryAt(event->position().toPoint());
    // The release of the click that opened the menu is no choice.
    if (entry >= 0 && entry == m_current)
        choose(entry);
}

void PopupMenu::keyPressEvent(QKeyEvent *event)
{
    const int count = int(m_entries.size());
    switch (event->key()) {
    case Qt::Key_Escape:
        hide();
        break;
    case Qt::Key_Down:
    case Qt::Key_Tab:
        setCurrent((m_current + 1) % count);
        break;
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        setCurrent((std::max(m_current, 0) + count - 1) % count);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_current >= 0)
            choose(m_current);
        break;
    default:
        QRasterWindow::keyPressEvent(event);
    }
}

void PopupMenu::focusOutEvent(QFocusEvent *)
{
    hide();
}

bool PopupMenu::event(QEvent *event)
{
    if (event->type() == QEvent::Hide)
        m_presses.stop();
    if (event->type() == QEvent::Hide && m_hasGrab) {
        m_hasGrab = false;
        setMouseGrabEnabled(false);
        setKeyboardGrabEnabled(false);
    } else if (event->type() == QEvent::Leave) {
        setCurrent(-1);
    }
    return QRasterWindow::event(event);
}

} // namespace ferrin
