// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/waylandpointer.h"

#include "platform/linux/layers/unseenwindow.h"
#include "popover/clickplace.h"

#include <QEnterEvent>
#include <QGuiApplication>
#include <QScreen>

#include <array>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace ferrin {

namespace {

// A panel that tells of a click while the button is still down keeps the pointer until it is up.
constexpr auto patience = 250ms;

std::array<QRect, 4> stripsOf(const QRect &screen)
{
    QRect top = screen;
    top.setHeight(thickestPanel);
    QRect left = screen;
    left.setWidth(thickestPanel);
    return { top, top.translated(0, screen.height() - thickestPanel), left,
             left.translated(screen.width() - thickestPanel, 0) };
}

} // namespace

class WaylandPointer::Strip final : public UnseenWindow
{
public:
    Strip(LayerShell &shell, QScreen &screen, const QRect &bounds, WaylandPointer &asker)
        : UnseenWindow(screen, bounds)
        , m_asker(asker)
        , m_corner(bounds.topLeft())
    {
        showIn(shell, layerPlaceFor(bounds, screen.geometry()), LayerShell::Kind::Cover);
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::Enter)
            m_asker.answer(m_corner + static_cast<QEnterEvent *>(event)->position().toPoint());
        return UnseenWindow::event(event);
    }

private:
    WaylandPointer &m_asker;
    QPoint m_corner;
};

WaylandPointer::WaylandPointer(QObject *parent)
    : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, [this] { answer({}); });
}

WaylandPointer::~WaylandPointer() = default;

void WaylandPointer::find(Answer answerTo)
{
    answer({});
    m_answer = std::move(answerTo);
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *const screen : screens) {
        for (const QRect &bounds : stripsOf(screen->geometry()))
            m_strips.push_back(std::make_unique<Strip>(m_shell, *screen, bounds, *this));
    }
    m_patience.start();
}

void WaylandPointer::answer(std::optional<QPoint> place)
{
    m_patience.stop();
    // It may be one of them that has found it.
    for (auto &strip : std::exchange(m_strips, {}))
        UnseenWindow::end(std::move(strip));
    if (const Answer told = std::exchange(m_answer, {}))
        told(place);
}

} // namespace ferrin
