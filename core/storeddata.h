// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QProperty>
#include <QString>

#include <optional>

namespace ferrin {

class DefaultsStore;

/// The details of the last power adapter, which persist across launches: five keys of the defaults
/// store. Nothing is cached; every call reads the store. Only the provider writes it.
///
/// A binding that reads a value is evaluated again when a different one is written. Deleting
/// everything notifies nobody.
class StoredData : public QObject
{
    Q_OBJECT

public:
    /// The store must outlive this view.
    explicit StoredData(DefaultsStore &defaults, QObject *parent = nullptr);

    /// The stored data of the process, in the shared defaults store. Created on first use and never
    /// destroyed.
    [[nodiscard]] static StoredData &shared();

    [[nodiscard]] std::optional<QString> adapterName() const;
    [[nodiscard]] std::optional<QString> adapterManufacturer() const;
    /// W.
    [[nodiscard]] std::optional<qint64> adapterWatts() const;
    /// V.
    [[nodiscard]] std::optional<float> adapterVoltage() const;
    /// A.
    [[nodiscard]] std::optional<float> adapterCurrent() const;

    // Writing an absent value removes the stored one...
    void setAdapterName(const std::optional<QString> &name);
    void setAdapterManufacturer(const std::optional<QString> &manufacturer);
    void setAdapterWatts(std::optional<qint64> watts);
    void setAdapterVoltage(std::optional<float> volts);
    /// ...except here: an absent current leaves the stored one as it is.
    void setAdapterCurrent(std::optional<float> amperes);

    void deleteAll();

Q_SIGNALS:
    void adapterNameChanged();
    void adapterManufacturerChanged();
    void adapterWattsChanged();
    void adapterVoltageChanged();
    void adapterCurrentChanged();

private:
    DefaultsStore &m_defaults;

    // The number of writes of each value: a read registers a dependency on it, a write changes it.
    Q_OBJECT_BINDABLE_PROPERTY(StoredData, quint64, m_nameWrites, &StoredData::adapterNameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(StoredData, quint64, m_manufacturerWrites,
                               &StoredData::adapterManufacturerChanged)
    Q_OBJECT_BINDABLE_PROPERTY(StoredData, quint64, m_wattsWrites, &StoredData::adapterWattsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(StoredData, quint64, m_voltageWrites,
                               &StoredData::adapterVoltageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(StoredData, quint64, m_currentWrites,
                               &StoredData::adapterCurrentChanged)
};

} // namespace ferrin
