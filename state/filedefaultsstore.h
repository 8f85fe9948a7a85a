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

/// A defaults store in one JSON file per user. A new value can be read at once; the file is written
/// at the end of the same turn of the event loop, all changes of the turn in one atomic step. Only
/// the keys that were changed here are changed in the file, so two processes do not overwrite each
/// other's values. No state of the file stops the process or lets it overwrite readable data: a
/// damaged file is set aside, and a write that fails is repeated with the next one and at growing
/// intervals. Each problem is logged once until it is over.
class FileDefaultsStore final : public DefaultsStore
{
    Q_OBJECT

public:
    /// The store of the suite, in a folder of its name under the user's configuration folder. An
    /// empty name or a relative folder is a programming error and stops the process.
    [[nodiscard]] static std::unique_ptr<FileDefaultsStore> open(const QString &configFolder,
                                                                 const QString &suiteName);

    explicit FileDefaultsStore(const QString &path);
    ~FileDefaultsStore() override;

    [[nodiscard]] QVariant object(const QString &key) const override;
    /// A value that is not a bool, finite number, string or bytes is rejected, here and below.
    void setObject(const QString &key, const QVariant &value) override;
    void setMissingObject(const QString &key, const QVariant &value) override;
    void registerDefaults(const QVariantMap &defaults) override;

    /// Writes pending changes now. Only needed before the process ends without an event loop.
    void flush();

private:
    void store(const QString &key, const QVariant &value);
    void flushPending();
    [[nodiscard]] QString mergeIntoFile(QStringList &adopted);
    [[nodiscard]] QString replaceFile(DefaultsFile::State found);
    [[nodiscard]] QStringList adopt(const DefaultsFile::Contents &contents);
    void scheduleRepetition();
    void logOnce(const QString &problem);

    DefaultsFile m_file;
    QJsonObject m_entries;
    QVariantMap m_registered;
    /// Changed here, but not written yet.
    QSet<QString> m_pending;
    /// Those pending changes that yield to a value in the file.
    QSet<QString> m_yielding;
    /// Fires in the next turn of the event loop, or when a failed write is to be repeated.
    QTimer m_flushTimer;
    std::chrono::milliseconds m_repetitionDelay;
    /// A problem that is not over has been logged.
    bool m_hasLoggedProblem = false;
};

} // namespace ferrin
