// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updaterecords.h"

#include "state/defaultsstore.h"

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString checksKey = u"automaticallyChecksForUpdates"_s;
const QString downloadsKey = u"automaticallyDownloadsUpdates"_s;
const QString lastCheckKey = u"lastUpdateCheck"_s;
const QString skippedKey = u"skippedUpdateVersion"_s;

} // namespace

UpdateRecords::UpdateRecords(DefaultsStore &store)
    : m_store(store)
{
}

bool UpdateRecords::automaticallyChecksForUpdates() const
{
    return m_store.boolean(checksKey).value_or(true);
}

void UpdateRecords::setAutomaticallyChecksForUpdates(bool checks)
{
    m_store.setObject(checksKey, checks);
}

bool UpdateRecords::automaticallyDownloadsUpdates() const
{
    return m_store.boolean(downloadsKey).value_or(false);
}

void UpdateRecords::setAutomaticallyDownloadsUpdates(bool downloads)
{
    m_store.setObject(downloadsKey, downloads);
}

std::optional<QDateTime> UpdateRecords::lastCheck() const
{
    return moment(lastCheckKey);
}

void UpdateRecords::setLastCheck(const QDateTime &moment)
{
    setMoment(lastCheckKey, moment);
}

QString UpdateRecords::skippedVersion() const
{
    return m_store.string(skippedKey).value_or(QString());
}

void UpdateRecords::setSkippedVersion(const QString &version)
{
    m_store.setObject(skippedKey, version);
}

std::optional<QDateTime> UpdateRecords::moment(const QString &key) const
{
    const QDateTime moment
        = QDateTime::fromString(m_store.string(key).value_or(QString()), Qt::ISODate);
    return moment.isValid() ? std::optional(moment) : std::nullopt;
}

void UpdateRecords::setMoment(const QString &key, const QDateTime &moment)
{
    m_store.setObject(key, moment.toUTC().toString(Qt::ISODate));
}

} // namespace ferrin
