// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktoplinkopener.h"

#include "base/logging.h"
#include "platform/linux/session/installedsettings.h"
#include "platform/linux/session/powerpage.h"

#include <QUrl>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString settingsScheme = u"x-apple.systempreferences"_s;
const QString batteryPane = u"com.apple.preference.battery"_s;
const QStringList handledSchemes { u"http"_s, u"https"_s, u"mailto"_s, u"file"_s };

// Not the toolkit's own service: it takes whatever browser it finds where the first of these is
// missing, and does not say when there is none.
QList<CommandLine> handlersOf(const QString &link)
{
    return { { u"xdg-open"_s, { link } },
             { u"gio"_s, { u"open"_s, link } },
             { u"kde-open"_s, { link } },
             { u"exo-open"_s, { link } } };
}

} // namespace

DesktopLinkOpener::DesktopLinkOpener(ProgramStarter &starter, QStringList desktops,
                                     QStringList dataFolders)
    : m_starter(starter)
    , m_desktops(std::move(desktops))
    , m_dataFolders(std::move(dataFolders))
{
}

bool DesktopLinkOpener::open(const QUrl &link)
{
    if (!link.isValid())
        return true;
    return link.scheme() == settingsScheme ? openSettings(link) : openWithHandler(link);
}

bool DesktopLinkOpener::openWithHandler(const QUrl &link)
{
    const QString text = link.toString(QUrl::FullyEncoded);
    if (!handledSchemes.contains(link.scheme())) {
        qCCritical(logger, "Unable to open %s: not a link to a page or a mail",
                   qUtf8Printable(text));
        return false;
    }
    return startOneOf(handlersOf(text), u"Unable to open %1"_s.arg(text));
}

bool DesktopLinkOpener::openSettings(const QUrl &link)
{
    if (link.path() != batteryPane) {
        qCCritical(logger, "Unable to open %s: no such settings", qUtf8Printable(link.toString()));
        return false;
    }
    const auto pages
        = powerPagesOf(m_desktops) + installedPowerSettings(m_dataFolders, m_desktops, m_starter);
    if (pages.isEmpty()) {
        qCCritical(logger, "Unable to open the battery settings: no power page is known for \"%s\"",
                   qUtf8Printable(m_desktops.join(u':')));
        return false;
    }
    return startOneOf(pages, u"Unable to open the battery settings"_s);
}

bool DesktopLinkOpener::startOneOf(const QList<CommandLine> &commands, const QString &failure)
{
    QStringList missing;
    for (const CommandLine &command : commands) {
        if (m_starter.isInstalled(command.program) && m_starter.start(command))
            return true;
        missing.append(command.program);
    }
    qCCritical(logger, "%s: cannot start %s", qUtf8Printable(failure),
               qUtf8Printable(missing.join(u", "_s)));
    return false;
}

} // namespace ferrin
