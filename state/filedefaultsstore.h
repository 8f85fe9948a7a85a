// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/defaultsfile.h"
#include "state/defaultsstore.h"

#include <QJsonObject>
#include <QSet>
#include <QTimer>
#include <QVariantMap>

#include <chrono>
#include <memory>

namespace ferrin {

/// The defaults store that is one JSON file of one user. What is set is answered at once and
/// reaches the file in the same turn of the event loop, all changes of a turn in one atomic step;
/// only the keys that were changed here are changed there, so that two processes never lose each
/// other's. Nothing that happens to the file stops the process or overwrites what might still be
/// read: a damaged file is set aside, a write that fails is tried again with the next and, ever
/// more rarely, by itself, and each trouble costs one log line until it is over.
class FileDefaultsStore final : public DefaultsStore
{
    Q_OBJECT

public:
    /// The suite's store, in its own folder under the folder of the user's configuration. Without a
    /// name or an absolute folder there is no store to open, which stops the process.
    [[nodiscard]] static std::unique_ptr<FileDefaultsStore> open(const QString &configFolder,
                                                                 const QString &suiteName);

    explicit FileDefaultsStore(const QString &path);
    ~FileDefaultsStore() override;

    [[nodiscard]] QVariant object(const QString &key) const override;
    /// A value that is no bool, finite number, text or data is not taken, here and below.
    void setObject(const QString &key, const QVariant &value) override;
    void setMissingObject(const QString &key, const QVariant &value) override;
    void registerDefaults(const QVariantMap &defaults) override;

    /// Writes what has changed now. Called by itself; of use before an end without an event loop.
    void flush();

private:
    void store(const QString &key, const QVariant &value);
    void flushPending();
    [[nodiscard]] QString mergeIntoFile(QStringList &adopted);
    [[nodiscard]] QString replaceFile(DefaultsFile::State found);
    [[nodiscard]] QStringList adopt(const DefaultsFile::Contents &contents);
    void tryAgainLater();
    void tellOnce(const QString &trouble);

    DefaultsFile m_file;
    QJsonObject m_entries;
    QVariantMap m_registered;
    /// Changed here and not yet in the file.
    QSet<QString> m_pending;
    /// Of the pending ones those that give way to what the file holds.
    QSet<QString> m_givingWay;
    /// Runs out as soon as the event loop is reached, or when a write that failed is to be
    /// repeated.
    QTimer m_flushTimer;
    std::chrono::milliseconds m_untilNextAttempt;
    /// The log knows of a trouble that is not over.
    bool m_isInTrouble = false;
};

} // namespace ferrin
