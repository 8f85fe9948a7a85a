// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/installedsettings.h"

#include "platform/linux/session/desktopentry.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

// https://specifications.freedesktop.org/desktop-entry-spec/1.5/

namespace {

bool shareOne(const QStringList &some, const QStringList &others)
{
    return std::ranges::any_of(some, [&others](const QString &each) {
        return others.contains(each, Qt::CaseInsensitive);
    });
}

bool isShownOn(const DesktopEntry &entry, const QStringList &desktops)
{
    const QStringList only = entry.list(u"OnlyShowIn"_s);
    return !entry.flag(u"Hidden"_s).value_or(false) && (only.isEmpty() || shareOne(only, desktops))
        && !shareOne(entry.list(u"NotShowIn"_s), desktops);
}

bool hasKeyword(const DesktopEntry &entry, const QString &word)
{
    return entry.list(u"Keywords"_s).contains(word, Qt::CaseInsensitive);
}

bool canBeStarted(const DesktopEntry &entry, const ProgramStarter &starter)
{
    const QString required = entry.value(u"TryExec"_s).value_or(QString());
    return !entry.flag(u"Terminal"_s).value_or(false)
        && (required.isEmpty() || starter.isInstalled(required));
}

/// No program for a line without one.
CommandLine commandOf(const DesktopEntry &entry)
{
    const QStringList words = wordsOfExec(entry.value(u"Exec"_s).value_or(QString()));
    return { words.value(0), words.mid(1) };
}

} // namespace

QList<CommandLine> installedPowerSettings(const QStringList &dataFolders,
                                          const QStringList &desktops,
                                          const ProgramStarter &starter)
{
    QList<CommandLine> ofTheBattery;
    QList<CommandLine> ofThePower;
    QSet<QString> seen;
    for (const QString &folder : dataFolders) {
        const QDir applications(folder + u"/applications"_s);
        const QStringList names
            = applications.entryList({ u"*.desktop"_s }, QDir::Files, QDir::Name);
        for (const QString &name : names) {
            QFile file(applications.filePath(name));
            if (seen.contains(name) || !file.open(QIODevice::ReadOnly))
                continue;
            seen.insert(name);
            const DesktopEntry entry(file.readAll());
            if (!entry.list(u"Categories"_s).contains(u"Settings"_s) || !isShownOn(entry, desktops)
                || !canBeStarted(entry, starter))
                continue;
            if (hasKeyword(entry, u"battery"_s))
                ofTheBattery.append(commandOf(entry));
            else if (hasKeyword(entry, u"power"_s))
                ofThePower.append(commandOf(entry));
        }
    }
    QList<CommandLine> all = ofTheBattery + ofThePower;
    all.removeIf([](const CommandLine &command) { return command.program.isEmpty(); });
    return all;
}

} // namespace ferrin
