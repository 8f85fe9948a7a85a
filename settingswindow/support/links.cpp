// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/support/links.h"

#include "quick/quickengine.h"
#include "state/linkopener.h"

#include <utility>

namespace ferrin {

Links::Links(LinkOpener &opener, Vendor vendor, QObject *parent)
    : QObject(parent)
    , m_opener(opener)
    , m_vendor(std::move(vendor))
{
}

Links *Links::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<Links>(*engine);
}

QString Links::faq() const
{
    return m_vendor.faq.toString(QUrl::FullyEncoded);
}

QString Links::supportMail() const
{
    return m_vendor.supportMail.toString(QUrl::FullyEncoded);
}

bool Links::open(const QString &link)
{
    const QUrl url(link, QUrl::StrictMode);
    const bool isLink = url.isValid() && !url.isRelative();
    return !isLink || m_opener.open(url);
}

} // namespace ferrin
