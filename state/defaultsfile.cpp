// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/defaultsfile.h"

#include "state/filereplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <filesystem>
#include <system_error>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// About a thousand times the size that the program writes.
constexpr qint64 greatestSize = 1'048'576;

QJsonObject salvaged(const QByteArray &text)
{
    QJsonObject entries;
    const QByteArrayList lines = text.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QByteArray line = lines.at(i).trimmed();
        const bool isComplete = i + 1 < lines.size() || line.endsWith(',');
        if (line.endsWith(','))
            line.chop(1);
        const QJsonObject entry = QJsonDocument::fromJson('{' + line + '}').object();
        for (auto it = entry.begin(); it != entry.end(); ++it) {
            // Part of a truncated number would be a different number.
            if (isComplete || !it.value().isDouble())
                entries.insert(it.key(), it.value());
        }
    }
    return entries;
}

QByteArray encoded(const QJsonObject &entries)
{
    QByteArrayList lines;
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        const QJsonObject entry { { it.key(), it.value() } };
        const QByteArray json = QJsonDocument(entry).toJson(QJsonDocument::Compact);
        lines.append(json.sliced(1, json.size() - 2));
    }
    return "{\n" + lines.join(",\n") + "\n}\n";
}

} // namespace

DefaultsFile::DefaultsFile(QString path)
    : m_path(std::move(path))
{
}

DefaultsFile::Contents DefaultsFile::read() const
{
    const QFileInfo info(m_path);
    // Opening a pipe would block until its other end is opened.
    if (info.exists() && !info.isFile())
        return { State::Unreadable, {}, u"Not a file"_s };
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return { info.exists() ? State::Unreadable : State::Missing, {}, file.errorString() };
    const QByteArray text = file.read(greatestSize + 1);
    if (file.error() != QFile::NoError)
        return { State::Unreadable, {}, file.errorString() };
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (document.isObject() && text.size() <= greatestSize)
        return { State::Whole, document.object(), {} };
    return { State::Damaged, salvaged(text), {} };
}

void DefaultsFile::makeFolder() const
{
    QDir().mkpath(QFileInfo(m_path).path());
}

QString DefaultsFile::write(const QJsonObject &entries) const
{
    return replaceFile(m_path, encoded(entries));
}

void DefaultsFile::removeLeftovers() const
{
    removeUnfinishedReplacements(m_path);
}

QString DefaultsFile::setAside() const
{
    const QString damaged = QFileInfo(m_path).canonicalFilePath();
    const std::filesystem::path source = QFile::encodeName(damaged).toStdString();
    for (int number = 1; number < 1000; ++number) {
        QString name = u"%1.damaged-%2"_s.arg(m_path).arg(number);
        const std::filesystem::path target = QFile::encodeName(name).toStdString();
        std::error_code error;
        std::filesystem::create_hard_link(source, target, error);
        if (!error)
            return name;
        if (error != std::errc::file_exists)
            // Not every file system supports hard links.
            return QFile::copy(damaged, name) ? name : QString();
        // May be left by a process that ended at this point.
        if (std::filesystem::equivalent(source, target, error))
            return name;
    }
    return {};
}

void DefaultsFile::forgetSetAside(const QString &name) const
{
    QFile::remove(name);
}

} // namespace ferrin
