// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class LoginItem;

/// Announces that something is about to set whether the application starts at login.
class LaunchAtLoginObservable final : public QObject
{
    Q_OBJECT

public:
    /// The one instance of the process.
    [[nodiscard]] static LaunchAtLoginObservable &shared();

    using QObject::QObject;

Q_SIGNALS:
    /// Emitted before the change.
    void willChange();
};

/// Whether the application starts when the user logs in. Nothing is stored here: each read asks the
/// session's login item, so the value cannot go stale. A change may take effect later, when the
/// desktop has asked the user. One that fails is logged and not shown; reading again gives the
/// actual state. A child of the QML engine.
class LaunchAtLogin final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setIsEnabled NOTIFY isEnabledChanged)

public:
    using Observable = LaunchAtLoginObservable;

    /// The item and the observable outlive this.
    explicit LaunchAtLogin(LoginItem &item, Observable &observable = Observable::shared(),
                           QObject *parent = nullptr);

    /// The engine's child.
    static LaunchAtLogin *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] bool isEnabled() const;
    /// Turning it on while it is on registers the item again.
    void setIsEnabled(bool enabled);

    /// Notifies all readers: the desktop's own tools may have changed the item.
    Q_INVOKABLE void readAgain();

Q_SIGNALS:
    /// It was set, possibly without success, or may have been changed elsewhere.
    void isEnabledChanged();

private:
    void change(bool enabled);

    LoginItem &m_item;
    Observable &m_observable;
};

} // namespace ferrin
