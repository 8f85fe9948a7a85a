// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/memorystore.h"

#include "base/logging.h"
#include "state/filelock.h"
#include "state/filereplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace ferrin {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Hours leastPause = 10min;
// Another session of the user's writes for milliseconds.
constexpr auto lockTimeout = 1000ms;
// Far more than the batteries of a life, and far less than would be felt.
constexpr qint64 largestFile = 65536;
constexpr std::size_t mostBatteries = 64;

} // namespace

MemoryStore::MemoryStore(QString path)
    : m_path(std::move(path))
{
    load();
}

QString MemoryStore::usualPath()
{
    // QStandardPaths knows this folder from Qt 6.7 on.
    const QString stateHome = qEnvironmentVariable("XDG_STATE_HOME");
    const QString folder
        = QDir::isAbsolutePath(stateHome) ? stateHome : QDir::homePath() + u"/.local/state"_s;
    return folder + u"/ferrin/batteries.json"_s;
}

const BatteryMemory &MemoryStore::find(const std::string &key) const
{
    static const BatteryMemory empty;
    const auto found = m_memories.find(key);
    return found == m_memories.end() ? empty : found->second;
}

BatteryMemory &MemoryStore::change(const std::string &key)
{
    m_changed = true;
    if (m_memories.size() >= mostBatteries && !m_memories.contains(key))
        m_memories.erase(m_memories.begin());
    return m_memories[key];
}

void MemoryStore::save(Hours elapsed)
{
    // A start counts as a write, so that the first minutes, of which little is known, are not it.
    if (!m_saved)
        m_saved = elapsed;
    if (!m_changed || elapsed - *m_saved < leastPause)
        return;
    m_saved = elapsed;
    saveNow();
}

void MemoryStore::saveNow()
{
    if (!m_changed || m_path.isEmpty())
        return;
    QJsonObject all;
    for (const auto &[key, memory] : m_memories)
        all.insert(QString::fromStdString(key), toJson(memory));
    QDir().mkpath(QFileInfo(m_path).path());
    const FileLock lock(m_path + u".lock"_s, lockTimeout);
    if (lock.isHeld())
        removeUnfinishedReplacements(m_path);
    const QString trouble = replaceFile(m_path, QJsonDocument(all).toJson());
    m_changed = !trouble.isNull();
    if (m_changed)
        complain(trouble);
}

void MemoryStore::load()
{
    QFile file(m_path);
    if (m_path.isEmpty() || !file.exists())
        return;
    // Opening a pipe would block until its other end is opened.
    if (!QFileInfo(m_path).isFile())
        return complain(u"Not a file"_s);
    if (!file.open(QIODevice::ReadOnly))
        return complain(file.errorString());
    QJsonParseError error {};
    const QJsonDocument document = QJsonDocument::fromJson(file.read(largestFile), &error);
    if (!document.isObject())
        return complain(error.errorString());
    const QJsonObject all = document.object();
    for (auto battery = all.begin(); battery != all.end(); ++battery)
        m_memories.emplace(battery.key().toStdString(), memoryFromJson(battery->toObject()));
}

void MemoryStore::complain(const QString &trouble)
{
    if (m_complained)
        return;
    m_complained = true;
    qCCritical(logger, "What is known of the batteries cannot be kept in %ls: %ls",
               qUtf16Printable(m_path), qUtf16Printable(trouble));
}

} // namespace ferrin
