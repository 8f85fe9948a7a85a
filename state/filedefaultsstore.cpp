// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filedefaultsstore.h"

#include "base/logging.h"
#include "state/filelock.h"
#include "state/jsonproperty.h"

#include <QDir>

#include <algorithm>
#include <chrono>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// A write takes milliseconds. A process that holds the lock for longer is stuck; do not wait for
// it.
constexpr std::chrono::milliseconds lockTimeout { 1000 };

// The delay before a failed write is repeated; it doubles each time.
constexpr std::chrono::milliseconds firstRepetitionDelay { 1000 };
constexpr std::chrono::milliseconds maxRepetitionDelay { 16'000 };

// QVariant considers true and 1 equal.
bool differ(const QVariant &a, const QVariant &b)
{
    return a.metaType() != b.metaType() || a != b;
}

} // namespace

std::unique_ptr<FileDefaultsStore> FileDefaultsStore::open(const QString &configFolder,
                                                           const QString &suiteName)
{
    if (!QDir::isAbsolutePath(configFolder) || suiteName.isEmpty() || suiteName.contains(u'/'))
        qFatal("The defaults store \"%s\" cannot be opened in the folder \"%s\"",
               qUtf8Printable(suiteName), qUtf8Printable(configFolder));
    return std::make_unique<FileDefaultsStore>(
        u"%1/%2/defaults.json"_s.arg(configFolder, suiteName));
}

FileDefaultsStore::FileDefaultsStore(const QString &path)
    : m_file(path)
    , m_repetitionDelay(firstRepetitionDelay)
{
    m_flushTimer.setSingleShot(true);
    connect(&m_flushTimer, &QTimer::timeout, this, &FileDefaultsStore::flushPending);
    const DefaultsFile::Contents contents = m_file.read();
    m_entries = contents.entries;
    if (contents.state == DefaultsFile::State::Damaged)
        flush();
    else if (contents.state == DefaultsFile::State::Unreadable)
        logOnce(contents.error);
}

FileDefaultsStore::~FileDefaultsStore()
{
    flushPending();
}

QVariant FileDefaultsStore::object(const QString &key) const
{
    const QVariant stored = propertyFromJson(m_entries.value(key));
    return stored.isValid() ? stored : m_registered.value(key);
}

void FileDefaultsStore::setObject(const QString &key, const QVariant &value)
{
    m_yielding.remove(key);
    store(key, value);
}

void FileDefaultsStore::setMissingObject(const QString &key, const QVariant &value)
{
    if (!m_entries.contains(key))
        m_yielding.insert(key);
    store(key, value);
}

void FileDefaultsStore::store(const QString &key, const QVariant &value)
{
    const QJsonValue json = value.isValid() ? jsonFromProperty(value) : QJsonValue::Undefined;
    if (value.isValid() && json.isUndefined()) {
        qCCritical(logger, "A value of type %s cannot be stored under the key %s", value.typeName(),
                   qUtf8Printable(key));
        return;
    }
    if (m_entries.value(key) == json)
        return;
    const QVariant before = object(key);
    m_entries.insert(key, json);
    m_pending.insert(key);
    // Restarting it each time would delay the write for as long as there are changes.
    if (!m_flushTimer.isActive() || m_flushTimer.interval() > 0)
        m_flushTimer.start(0);
    if (differ(before, object(key)))
        Q_EMIT changed(key);
}

void FileDefaultsStore::registerDefaults(const QVariantMap &defaults)
{
    m_registered.insert(defaults);
}

void FileDefaultsStore::flushPending()
{
    if (!m_pending.isEmpty())
        flush();
}

void FileDefaultsStore::flush()
{
    QStringList adopted;
    const QString problem = mergeIntoFile(adopted);
    if (problem.isNull()) {
        m_pending.clear();
        m_yielding.clear();
        m_hasLoggedProblem = false;
        m_repetitionDelay = firstRepetitionDelay;
    } else {
        logOnce(problem);
        scheduleRepetition();
    }
    for (const QString &key : std::as_const(adopted))
        Q_EMIT changed(key);
}

/// Returns null, or why the pending changes could not be written.
QString FileDefaultsStore::mergeIntoFile(QStringList &adopted)
{
    m_file.makeFolder();
    // A write without the lock may lose another process's key; without the write, ours is lost
    // for certain.
    const FileLock lock(m_file.path() + u".lock"_s, lockTimeout);
    const DefaultsFile::Contents contents = m_file.read();
    if (contents.state == DefaultsFile::State::Unreadable)
        return contents.error;
    adopted = adopt(contents);
    const bool isCurrent
        = contents.state == DefaultsFile::State::Whole && contents.entries == m_entries;
    if (isCurrent)
        return {};
    if (lock.isHeld())
        m_file.removeLeftovers();
    return replaceFile(contents.state);
}

/// Returns null, or why the file is unchanged.
QString FileDefaultsStore::replaceFile(DefaultsFile::State found)
{
    if (found != DefaultsFile::State::Damaged)
        return m_file.write(m_entries);
    const QString aside = m_file.setAside();
    if (aside.isNull())
        return u"It is damaged and cannot be set aside"_s;
    QString problem = m_file.write(m_entries);
    if (problem.isNull())
        qCCritical(logger, "The defaults store %s is damaged and was set aside as %s",
                   qUtf8Printable(m_file.path()), qUtf8Printable(aside));
    else
        m_file.forgetSetAside(aside);
    return problem;
}

/// Adopts the file's values of the keys without a pending change, and returns the keys that changed
/// by that. Only an undamaged file can prove that a key was removed.
QStringList FileDefaultsStore::adopt(const DefaultsFile::Contents &contents)
{
    QJsonObject merged = contents.state == DefaultsFile::State::Whole ? QJsonObject() : m_entries;
    for (auto it = contents.entries.begin(); it != contents.entries.end(); ++it)
        merged.insert(it.key(), it.value());
    for (const QString &key : std::as_const(m_pending)) {
        if (!m_yielding.contains(key) || !contents.entries.contains(key))
            merged.insert(key, m_entries.value(key));
    }

    QStringList changedKeys;
    for (const QString &key : merged.keys() + m_entries.keys()) {
        if (merged.value(key) != m_entries.value(key) && !changedKeys.contains(key))
            changedKeys.append(key);
    }
    m_entries = merged;
    return changedKeys;
}

void FileDefaultsStore::scheduleRepetition()
{
    if (m_pending.isEmpty())
        return;
    m_flushTimer.start(m_repetitionDelay);
    m_repetitionDelay = std::min(2 * m_repetitionDelay, maxRepetitionDelay);
}

void FileDefaultsStore::logOnce(const QString &problem)
{
    if (!std::exchange(m_hasLoggedProblem, true))
        qCCritical(logger, "Unable to save the defaults store %s: %s",
                   qUtf8Printable(m_file.path()), qUtf8Printable(problem));
}

} // namespace ferrin
