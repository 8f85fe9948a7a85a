// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/autostartentry.h"

#include "platform/linux/session/desktopnames.h"
#include "platform/linux/session/singleinstance.h"
#include "state/filereplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

// https://specifications.freedesktop.org/autostart-spec/0.5/

namespace {

const QString exec = u"Exec"_s;
const QString tryExec = u"TryExec"_s;
const QString hidden = u"Hidden"_s;
const QString onlyShowIn = u"OnlyShowIn"_s;
const QString notShowIn = u"NotShowIn"_s;

// By these the tools of the desktops switch an entry off without hiding it.
const std::array desktopsSwitches { u"X-GNOME-Autostart-enabled"_s, u"X-MATE-Autostart-enabled"_s };

std::optional<DesktopEntry> entryIn(const QString &path)
{
    constexpr qint64 longest = 1 << 20;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return DesktopEntry(file.read(longest));
}

QString executable(const QString &program)
{
    return program.isEmpty() ? QString() : QStandardPaths::findExecutable(program);
}

/// The script that sets up what the program needs, where there is one: Nix and Guix give it the
/// program's name and hide the program beside it, as ".NAME-wrapped" and ".NAME-real".
QString wrapperOf(const QString &program)
{
    static const QRegularExpression wrapped(u"/\\.([^/]+)-(wrapped|real)$"_s);
    QString script = program;
    script.replace(wrapped, u"/\\1"_s);
    return QFileInfo(script).isExecutable() ? script : program;
}

bool containsAny(const QStringList &list, const QStringList &names)
{
    return std::ranges::any_of(names, [&](const QString &name) { return list.contains(name); });
}

} // namespace

AutostartSession AutostartSession::current()
{
    return { .configFolders
             = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation),
             .desktops = currentDesktopNames() };
}

AutostartEntry::AutostartEntry(QString identifier, const QString &program, AutostartSession session)
    : m_identifier(std::move(identifier))
    , m_program(wrapperOf(program))
    , m_session(std::move(session))
{
}

LoginItemStatus AutostartEntry::status() const
{
    const bool isUsers = QFileInfo::exists(usersFile());
    const auto entry = isUsers ? usersEntry() : systemsEntry();
    return entry ? statusOf(*entry) : LoginItemStatus::notRegistered;
}

LoginItemStatus AutostartEntry::statusOf(const DesktopEntry &entry) const
{
    if (entry.flag(hidden).value_or(false) || !isOurs(entry))
        return LoginItemStatus::notRegistered;
    const auto required = entry.value(tryExec);
    const QString program = programOfExec(entry.value(exec).value_or(QString()));
    if (executable(program).isEmpty() || (required && executable(*required).isEmpty()))
        return LoginItemStatus::notFound;
    if (isDisabledByDesktop(entry) || isForAnotherDesktop(entry))
        return LoginItemStatus::requiresApproval;
    return LoginItemStatus::enabled;
}

bool AutostartEntry::isOurs(const DesktopEntry &entry) const
{
    const QString program = programOfExec(entry.value(exec).value_or(QString()));
    const QString found = executable(program);
    // One that is gone has its name alone to tell: the program has moved since.
    if (found.isEmpty())
        return QFileInfo(program).fileName() == QFileInfo(m_program).fileName();
    return QFileInfo(found).canonicalFilePath() == QFileInfo(m_program).canonicalFilePath();
}

bool AutostartEntry::isDisabledByDesktop(const DesktopEntry &entry) const
{
    return std::ranges::any_of(desktopsSwitches,
                               [&](const QString &key) { return entry.flag(key) == false; });
}

bool AutostartEntry::isForAnotherDesktop(const DesktopEntry &entry) const
{
    if (containsAny(entry.list(notShowIn), m_session.desktops))
        return true;
    return entry.value(onlyShowIn) && !containsAny(entry.list(onlyShowIn), m_session.desktops);
}

std::optional<QString> AutostartEntry::putEntry()
{
    auto entry = QFileInfo::exists(usersFile()) ? usersEntry() : m_removed;
    if (!entry || !isOurs(*entry))
        entry.emplace();
    entry->setValue(u"Type"_s, u"Application"_s);
    if (!entry->value(u"Name"_s))
        entry->setValue(u"Name"_s, u"Ferrin"_s);
    if (!entry->value(u"Icon"_s))
        entry->setValue(u"Icon"_s, m_identifier);
    entry->setValue(exec, execOfProgram(m_program) + u' ' + backgroundOption);
    entry->setValue(tryExec, m_program);
    entry->remove(hidden);
    for (const QString &key : desktopsSwitches)
        entry->remove(key);
    if (isForAnotherDesktop(*entry)) {
        entry->remove(onlyShowIn);
        entry->remove(notShowIn);
    }
    return write(*entry);
}

std::optional<QString> AutostartEntry::takeEntryAway()
{
    auto entry = usersEntry();
    const auto systems = systemsEntry();
    if (systems && statusOf(*systems) != LoginItemStatus::notRegistered
        && (!entry || isOurs(*entry))) {
        DesktopEntry overriding = entry ? *entry : *systems;
        overriding.setValue(hidden, u"true"_s);
        return write(overriding);
    }
    if (!entry || !isOurs(*entry))
        return std::nullopt;
    QFile file(usersFile());
    if (!file.remove())
        return u"%1: %2"_s.arg(file.fileName(), file.errorString());
    m_removed = std::move(entry);
    return std::nullopt;
}

QString AutostartEntry::usersFile() const
{
    return u"%1/autostart/%2.desktop"_s.arg(m_session.configFolders.first(), m_identifier);
}

std::optional<DesktopEntry> AutostartEntry::usersEntry() const
{
    return entryIn(usersFile());
}

std::optional<DesktopEntry> AutostartEntry::systemsEntry() const
{
    for (const QString &folder : m_session.configFolders.mid(1)) {
        if (auto entry = entryIn(u"%1/autostart/%2.desktop"_s.arg(folder, m_identifier)))
            return entry;
    }
    return std::nullopt;
}

std::optional<QString> AutostartEntry::write(const DesktopEntry &entry) const
{
    const QString folder = QFileInfo(usersFile()).path();
    if (!QDir().mkpath(folder))
        return u"%1: the folder cannot be made"_s.arg(folder);
    removeUnfinishedReplacements(usersFile());
    const QString trouble = replaceFile(usersFile(), entry.content());
    return trouble.isNull() ? std::nullopt : std::optional(u"%1: %2"_s.arg(usersFile(), trouble));
}

} // namespace ferrin
