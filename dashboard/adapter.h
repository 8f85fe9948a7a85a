// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QProperty>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class BatteryData;
class StoredData;

/// The last power adapter that was seen, as QML reads it: an absent value is `undefined`. The
/// stored data does not tell when it is deleted, so all of it is read again after each turn in
/// which it was written or the power source changed. A child of the engine; the stored data and the
/// snapshot outlive it.
class Adapter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// W.
    Q_PROPERTY(QVariant watts READ watts NOTIFY wattsChanged BINDABLE bindableWatts)
    /// V.
    Q_PROPERTY(QVariant voltage READ voltage NOTIFY voltageChanged BINDABLE bindableVoltage)
    /// A.
    Q_PROPERTY(QVariant current READ current NOTIFY currentChanged BINDABLE bindableCurrent)
    Q_PROPERTY(QVariant name READ name NOTIFY nameChanged BINDABLE bindableName)
    Q_PROPERTY(QVariant manufacturer READ manufacturer NOTIFY manufacturerChanged BINDABLE
                   bindableManufacturer)

public:
    Adapter(StoredData &stored, BatteryData &data, QObject *parent = nullptr);

    /// The engine's child.
    static Adapter *create(QQmlEngine *engine, QJSEngine *);

    /// Volts or amperes as they are shown: at most two decimals, a point before them, no grouping.
    Q_INVOKABLE [[nodiscard]] static QString decimalText(double value);
    /// A maker's name holds "Apple", in any case.
    Q_INVOKABLE [[nodiscard]] static bool isApple(const QString &manufacturer);

    [[nodiscard]] QVariant watts() const { return m_watts; }
    [[nodiscard]] QBindable<QVariant> bindableWatts() { return &m_watts; }
    [[nodiscard]] QVariant voltage() const { return m_voltage; }
    [[nodiscard]] QBindable<QVariant> bindableVoltage() { return &m_voltage; }
    [[nodiscard]] QVariant current() const { return m_current; }
    [[nodiscard]] QBindable<QVariant> bindableCurrent() { return &m_current; }
    [[nodiscard]] QVariant name() const { return m_name; }
    [[nodiscard]] QBindable<QVariant> bindableName() { return &m_name; }
    [[nodiscard]] QVariant manufacturer() const { return m_manufacturer; }
    [[nodiscard]] QBindable<QVariant> bindableManufacturer() { return &m_manufacturer; }

Q_SIGNALS:
    void wattsChanged();
    void voltageChanged();
    void currentChanged();
    void nameChanged();
    void manufacturerChanged();

private:
    void readSoon();
    void read();

    StoredData &m_stored;
    bool m_isReadQueued = false;
    Q_OBJECT_BINDABLE_PROPERTY(Adapter, QVariant, m_watts, &Adapter::wattsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Adapter, QVariant, m_voltage, &Adapter::voltageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Adapter, QVariant, m_current, &Adapter::currentChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Adapter, QVariant, m_name, &Adapter::nameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Adapter, QVariant, m_manufacturer, &Adapter::manufacturerChanged)
};

} // namespace ferrin
