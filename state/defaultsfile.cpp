// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/defaultsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// Some thousand times what the program ever writes.
constexpr qint64 greatestSize = 1'048'576;

QJsonObject salvaged(const QByteArray &text)
{
    QJsonObject entries;
    for (QByteArray line : text.split('\n')) {
        line = line.trimmed();
        if (line.endsWith(','))
            line.chop(1);
        const QJsonObject entry = QJsonDocument::fromJson('{' + line + '}').object();
        for (auto it = entry.begin(); it != entry.end(); ++it)
            entries.insert(it.key(), it.value());
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
    // Opening a pipe would wait for its other end.
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
    QSaveFile file(m_path);
    const QByteArray text = encoded(entries);
    // On a disk that fills up the system writes a part first and fails at the rest. QSaveFile would
    // take the part for the whole; flushing again writes the rest or learns the reason.
    const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size()
        && (file.flush() || file.flush()) && file.commit();
    return written ? QString() : file.errorString();
}

QString DefaultsFile::setAside() const
{
    for (int number = 1; number < 1000; ++number) {
        const QString name = u"%1.damaged-%2"_s.arg(m_path).arg(number);
        if (QFileInfo::exists(name))
            continue;
        return QFile::rename(m_path, name) ? name : QString();
    }
    return {};
}

} // namespace ferrin
