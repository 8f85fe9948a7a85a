// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The baseline for starting up: a minimal application with an empty item in the status area.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    // No platform theme is loaded, as in the program.
    QGuiApplication::setDesktopSettingsAware(false);
    const QGuiApplication app(argc, argv);

    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString name
        = u"org.kde.StatusNotifierItem-%1-1"_s.arg(QGuiApplication::applicationPid());
    bus.registerService(name);
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s,
        u"org.kde.StatusNotifierWatcher"_s, u"RegisterStatusNotifierItem"_s);
    call << name;
    bus.call(call);
    return QGuiApplication::exec();
}
