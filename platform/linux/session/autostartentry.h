// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/session/desktopentry.h"
#include "state/loginitem.h"

#include <QString>
#include <QStringList>

namespace ferrin {

/// What the autostart entry depends on.
struct AutostartSession
{
    /// The session this process runs in.
    [[nodiscard]] static AutostartSession current();

    /// The user's own configuration folder and those of the system, the most important first; never
    /// empty.
    QStringList configFolders;
    /// The running desktop's names, as `currentDesktopNames()` returns them.
    QStringList desktops;
};

/// The login item as an XDG autostart entry, which each call reads or changes at once. The user's
/// file alone is written, at once and whole; an entry of the system is overridden by it. An entry
/// of this name that starts another program is not ours: it counts as not registered and is
/// replaced only by a registration.
class AutostartEntry final : public LoginItem
{
public:
    /// The entry is named after the application's identifier and starts the program with this
    /// absolute path, or the script that a package put into the program's place.
    AutostartEntry(QString identifier, const QString &program,
                   AutostartSession session = AutostartSession::current());

    [[nodiscard]] LoginItemStatus status() const override;
    void registerItem(Done done) override { done(putEntry()); }
    void unregisterItem(Done done) override { done(takeEntryAway()); }

private:
    /// Both return the error message; absent on success.
    [[nodiscard]] std::optional<QString> putEntry();
    [[nodiscard]] std::optional<QString> takeEntryAway();
    [[nodiscard]] QString usersFile() const;
    [[nodiscard]] std::optional<DesktopEntry> usersEntry() const;
    /// The first of the system's; absent when there is none.
    [[nodiscard]] std::optional<DesktopEntry> systemsEntry() const;
    [[nodiscard]] LoginItemStatus statusOf(const DesktopEntry &entry) const;
    [[nodiscard]] bool isOurs(const DesktopEntry &entry) const;
    [[nodiscard]] bool isDisabledByDesktop(const DesktopEntry &entry) const;
    [[nodiscard]] bool isForAnotherDesktop(const DesktopEntry &entry) const;
    [[nodiscard]] std::optional<QString> write(const DesktopEntry &entry) const;

    QString m_identifier;
    QString m_program;
    AutostartSession m_session;
    /// The entry that was removed last: what the user had added to it comes back with the next
    /// registration.
    std::optional<DesktopEntry> m_removed;
};

} // namespace ferrin
