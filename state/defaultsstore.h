// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVariant>

#include <optional>

namespace ferrin {

/// The per-user key-value store. One instance serves the whole process: the settings, the display
/// switches, the colour scheme and the stored adapter. A value is a bool, a number, a string or
/// bytes, and its type is preserved: a string is never read as a number, nor a number as a bool. A
/// missing key reads as absent.
class DefaultsStore : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The stored value, else the registered default, else invalid.
    [[nodiscard]] virtual QVariant object(const QString &key) const = 0;

    /// Stores the value; an invalid value removes the key. Emits `changed` when the result of
    /// `object` changes. A failure to write the file is logged once; the value is kept for the life
    /// of the process.
    virtual void setObject(const QString &key, const QVariant &value) = 0;

    /// Stores a default, unless the key has a value. If the file could not be read so far and turns
    /// out to have one, that value is kept.
    virtual void setMissingObject(const QString &key, const QVariant &value)
    {
        setObject(key, value);
    }

    /// Fallback values for keys that are not stored. Never written.
    virtual void registerDefaults(const QVariantMap &defaults) = 0;

    void removeObject(const QString &key) { setObject(key, {}); }

    [[nodiscard]] std::optional<bool> boolean(const QString &key) const;
    [[nodiscard]] std::optional<qint64> integer(const QString &key) const;
    [[nodiscard]] std::optional<double> number(const QString &key) const;
    [[nodiscard]] std::optional<QString> string(const QString &key) const;
    [[nodiscard]] std::optional<QByteArray> data(const QString &key) const;

Q_SIGNALS:
    void changed(const QString &key);
};

} // namespace ferrin
