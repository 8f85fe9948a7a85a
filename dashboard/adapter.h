// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class BatteryData;
class StoredData;

/// The last power adapter that was seen, as QML reads it: an absent value is `undefined`. It stores
/// nothing. The stored data does not signal its deletion, which comes with a change of the power
/// source; so all values notify together, once the event loop is reached after either has changed.
/// A child of the engine; the stored data and the snapshot outlive it.
class Adapter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// W.
    Q_PROPERTY(QVariant watts READ watts NOTIFY changed)
    /// V.
    Q_PROPERTY(QVariant voltage READ voltage NOTIFY changed)
    /// A.
    Q_PROPERTY(QVariant current READ current NOTIFY changed)
    Q_PROPERTY(QVariant name READ name NOTIFY changed)
    Q_PROPERTY(QVariant manufacturer READ manufacturer NOTIFY changed)

public:
    Adapter(StoredData &stored, BatteryData &data, QObject *parent = nullptr);

    /// The engine's child.
    static Adapter *create(QQmlEngine *engine, QJSEngine *);

    /// Volts or amperes as they are shown: at most two decimals, a point before them, no grouping.
    Q_INVOKABLE [[nodiscard]] static QString decimalText(double value);
    /// A maker's name holds "Apple", in any case.
    Q_INVOKABLE [[nodiscard]] static bool isApple(const QString &manufacturer);

    [[nodiscard]] QVariant watts() const;
    [[nodiscard]] QVariant voltage() const;
    [[nodiscard]] QVariant current() const;
    [[nodiscard]] QVariant name() const;
    [[nodiscard]] QVariant manufacturer() const;

Q_SIGNALS:
    void changed();

private:
    void notifySoon();

    StoredData &m_stored;
    bool m_isNotificationQueued = false;
};

} // namespace ferrin
