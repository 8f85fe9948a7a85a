// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/xembed/traycolors.h"

#include "platform/linux/xembed/trayowner.h"

#include <utility>
#include <xcb/xcb.h>

namespace ferrin {

namespace {

// Text, error, warning and success; three words each.
constexpr size_t announcedWords = 12;

} // namespace

std::optional<QColor> textAmongTrayColors(std::span<const quint32> announced)
{
    if (announced.size() != announcedWords)
        return {};
    constexpr quint32 most = 0xffff;
    if (announced[0] > most || announced[1] > most || announced[2] > most)
        return {};
    return QColor(int(announced[0] >> 8), int(announced[1] >> 8), int(announced[2] >> 8));
}

TrayColors::TrayColors(const TrayOwner &owner, QObject *parent)
    : QObject(parent)
    , m_owner(owner)
{
    if (!m_x11)
        return;
    m_colorsAtom = m_x11.atom("_NET_SYSTEM_TRAY_COLORS");
    connect(&m_owner, &TrayOwner::changed, this, &TrayColors::read);
    connect(&m_owner, &TrayOwner::propertyChanged, this, [this](quint32 atom) {
        if (atom == m_colorsAtom)
            read();
    });
    read();
}

void TrayColors::read()
{
    std::optional<QColor> text;
    if (m_owner.window() != XCB_WINDOW_NONE) {
        const auto request = xcb_get_property(m_x11.get(), 0, m_owner.window(), m_colorsAtom,
                                              XCB_ATOM_CARDINAL, 0, announcedWords);
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_x11.get(), request, nullptr));
        if (reply && reply->format == 32)
            text = textAmongTrayColors(
                { static_cast<const quint32 *>(xcb_get_property_value(reply.get())),
                  size_t(xcb_get_property_value_length(reply.get())) / sizeof(quint32) });
    }
    if (std::exchange(m_text, text) != text)
        Q_EMIT changed();
}

} // namespace ferrin
