// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class LoginItem;

/// Announces that whether the application starts at login is about to be set, by whomever.
class LaunchAtLoginObservable final : public QObject
{
    Q_OBJECT

public:
    /// The process's.
    [[nodiscard]] static LaunchAtLoginObservable &shared();

    using QObject::QObject;

Q_SIGNALS:
    /// Nothing has changed yet.
    void willChange();
};

/// Whether the application starts when the user logs in. The answer lives in the session alone and
/// is asked for at each reading, so it cannot go out of step. A change that fails is logged and
/// shown to nobody: whoever reads again sees what holds. In QML the engine's child.
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
    /// Turning on what is on already registers the item anew.
    void setIsEnabled(bool enabled);

    /// Has everybody read again: the session's own tools may have changed it.
    Q_INVOKABLE void readAgain();

Q_SIGNALS:
    /// It has been set, perhaps without success, or may have been changed elsewhere: read again.
    void isEnabledChanged();

private:
    LoginItem &m_item;
    Observable &m_observable;
};

} // namespace ferrin
