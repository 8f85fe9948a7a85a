// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QLatin1StringView>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

namespace ferrin {

/// The option of a start that shows nothing if the program runs already, as at login: there may be
/// an autostart entry and a user unit.
constexpr QLatin1StringView backgroundOption("--background");

/// Whether this is the session's only run of the program, known by a name on the session bus, and
/// how second starts and the actions of the desktop entry reach that run. The name is held as long
/// as the connection. On the bus it is org.freedesktop.Application, as desktops call it.
/// https://specifications.freedesktop.org/desktop-entry-spec/1.5/#dbus
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    SingleInstance(QDBusConnection session, QString name);
    ~SingleInstance() override;

    /// False when another run has the name, which then stays the other's. Without a bus it
    /// counts as the only one, with one log line.
    [[nodiscard]] bool acquire();

    /// Asks the run that has the name to show itself, and waits until it has heard of it.
    void activateOther();

    // The bus' own way to the signals; public because only then the bus may call it.
    Q_SCRIPTABLE Q_INVOKABLE void Activate(const QVariantMap &platformData);
    /// The actions are "settings" and "quit"; the first other costs a log line.
    Q_SCRIPTABLE Q_INVOKABLE void ActivateAction(const QString &name, const QVariantList &parameter,
                                                 const QVariantMap &platformData);

Q_SIGNALS:
    /// Another start asks this run to show itself.
    void activated();
    /// An action of the desktop entry was chosen.
    void settingsRequested();
    void quitRequested();

private:
    static void keepToken(const QVariantMap &platformData);

    QDBusConnection m_session;
    QString m_name;
    QString m_path;
    /// Anybody may send what is none; the log is not theirs to fill.
    bool m_hasRefusedAnAction = false;
};

} // namespace ferrin
