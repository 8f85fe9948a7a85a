// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/portalloginitem.h"

#include "platform/linux/session/portalrequest.h"
#include "platform/linux/session/singleinstance.h"
#include "state/defaultsstore.h"

#include <QStringList>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString interface = u"org.freedesktop.portal.Background"_s;
const QString grantedKey = u"launchAtLoginGranted"_s;

} // namespace

PortalLoginItem::PortalLoginItem(const QDBusConnection &session, DefaultsStore &store,
                                 QString program)
    : m_session(session)
    , m_store(store)
    , m_program(std::move(program))
{
}

LoginItemStatus PortalLoginItem::status() const
{
    return m_store.boolean(grantedKey).value_or(false) ? LoginItemStatus::enabled
                                                       : LoginItemStatus::notRegistered;
}

void PortalLoginItem::request(bool autostart, Done done)
{
    const QVariantMap options {
        { u"autostart"_s, autostart },
        { u"commandline"_s, QStringList { m_program, backgroundOption } },
        { u"reason"_s, u"Ferrin shows the battery in the status area."_s },
    };
    PortalRequest::send(
        m_session, interface, u"RequestBackground"_s, { QString() }, options, this,
        [this, autostart, number = ++m_number,
         done = std::move(done)](const std::optional<QString> &error, const QVariantMap &results) {
            if (number != m_number || error)
                done(error);
            else
                done(take(autostart, results.value(u"autostart"_s) == QVariant(true)));
        });
}

std::optional<QString> PortalLoginItem::take(bool autostart, bool granted)
{
    m_store.setObject(grantedKey, granted ? QVariant(true) : QVariant());
    if (granted == autostart)
        return std::nullopt;
    return granted ? u"the desktop keeps it"_s : u"the desktop does not allow it"_s;
}

} // namespace ferrin
