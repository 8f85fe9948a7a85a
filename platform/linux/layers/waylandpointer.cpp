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

// A panel that reports a click while the button is still down keeps the pointer until it is up.
constexpr auto timeout = 250ms;

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
    m_timeout.setSingleShot(true);
    m_timeout.setInterval(timeout);
    connect(&m_timeout, &QTimer::timeout, this, [this] { answer({}); });
}

WaylandPointer::~WaylandPointer() = default;

void WaylandPointer::find(Answer answerTo)
{
    answer({});
    m_answer = std::move(answerTo);
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *const screen : screens) {
        for (const QRect &bounds : stripsOf(screen->geometry()))
            m_strips.push_back(std::make_unique<Strip>(*m_shell, *screen, bounds, *this));
    }
    m_timeout.start();
}

void WaylandPointer::answer(std::optional<QPoint> place)
{
    m_timeout.stop();
    // This may be called from an event of one of them.
    for (auto &strip : std::exchange(m_strips, {}))
        UnseenWindow::end(std::move(strip));
    if (const Answer answerTo = std::exchange(m_answer, {}))
        answerTo(place);
}

} // namespace ferrin
