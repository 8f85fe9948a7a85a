// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The floor of starting up: a bare application that puts an empty item into the status area.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    // As the program does: no desktop's platform theme is loaded.
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
