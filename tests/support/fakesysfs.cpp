// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/fakesysfs.h"

#include "tests/support/machinerecord.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QtGlobal>

#include <sys/stat.h>
#include <unistd.h>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

const QString supplies = u"class/power_supply/"_s;

void require(bool done, const char *what, const QString &path)
{
    if (!done)
        qFatal("The fake sysfs cannot %s %s", what, qPrintable(path));
}

// In memory: rewriting small files on a disk is slow.
QString folderTemplate()
{
    const QFileInfo memory(u"/dev/shm"_s);
    const QString parent = memory.isWritable() ? memory.filePath() : QDir::tempPath();
    return parent + u"/ferrin-sysfs-XXXXXX"_s;
}

} // namespace

FakeSysfs::FakeSysfs()
    : m_directory(folderTemplate())
{
    require(m_directory.isValid(), "make", m_directory.path());
    writeDirectory(u"class/power_supply"_s);
}

std::string FakeSysfs::root() const
{
    return path({}).toStdString();
}

QString FakeSysfs::path(const QString &relative) const
{
    const QString root = m_directory.path() + u"/sys"_s;
    return relative.isEmpty() ? root : root + u'/' + relative;
}

void FakeSysfs::write(const QString &relative, const QByteArray &value)
{
    const QString file = path(relative);
    require(QDir().mkpath(QFileInfo(file).path()), "make the folder of", file);
    QFile attribute(file);
    require(attribute.open(QIODevice::WriteOnly), "open", file);
    require(attribute.write(value + '\n') == value.size() + 1, "write", file);
}

void FakeSysfs::remove(const QString &relative)
{
    const QString entry = path(relative);
    const QFileInfo info(entry);
    if (info.isDir() && !info.isSymLink())
        QDir(entry).removeRecursively();
    else
        QFile::remove(entry);
}

void FakeSysfs::writeDirectory(const QString &relative)
{
    require(QDir().mkpath(path(relative)), "make", path(relative));
}

void FakeSysfs::writeLink(const QString &relative, const QByteArray &target)
{
    const QByteArray link = path(relative).toLocal8Bit();
    require(::symlink(target.constData(), link.constData()) == 0, "link", path(relative));
}

void FakeSysfs::writePipe(const QString &relative)
{
    const QByteArray pipe = path(relative).toLocal8Bit();
    require(::mkfifo(pipe.constData(), 0600) == 0, "make a pipe at", path(relative));
}

void FakeSysfs::supply(const QString &name, Attributes attributes)
{
    writeDirectory(supplies + name);
    for (const auto &[attribute, value] : attributes)
        set(name, QString::fromLatin1(attribute), value);
}

void FakeSysfs::set(const QString &supply, const QString &attribute, const QByteArray &value)
{
    write(supplies + supply + u'/' + attribute, value);
}

void FakeSysfs::removeSupply(const QString &name)
{
    remove(supplies + name);
}

void FakeSysfs::load(const QJsonObject &record)
{
    const QJsonObject all = suppliesOf(record);
    for (auto supplyOf = all.begin(); supplyOf != all.end(); ++supplyOf) {
        const QJsonObject attributes = supplyOf->toObject();
        supply(supplyOf.key(), {});
        for (auto entry = attributes.begin(); entry != attributes.end(); ++entry) {
            if (entry->toString().startsWith("<read error"_L1))
                writeDirectory(supplies + supplyOf.key() + u'/' + entry.key());
            else
                set(supplyOf.key(), entry.key(), entry->toString().toUtf8());
        }
    }
    loadTree(u"class/typec"_s, record.value("typec"_L1).toObject());
    loadTree(u"class/usb_power_delivery"_s, record.value("usb_power_delivery"_L1).toObject());
}

void FakeSysfs::loadTree(const QString &base, const QJsonObject &tree)
{
    for (auto entry = tree.begin(); entry != tree.end(); ++entry) {
        const QString relative = base + u'/' + entry.key();
        if (entry->isObject())
            loadTree(relative, entry->toObject());
        else
            write(relative, entry->toString().toUtf8());
    }
}

QJsonObject FakeSysfs::record(const QString &name)
{
    QFile file(QStringLiteral(FERRIN_TEST_DATA "/machines/") + name + u".json"_s);
    require(file.open(QIODevice::ReadOnly), "read", file.fileName());
    return QJsonDocument::fromJson(file.readAll()).object();
}

QStringList FakeSysfs::recordNames()
{
    QStringList names;
    const QDir machines(QStringLiteral(FERRIN_TEST_DATA "/machines"));
    for (const QFileInfo &file : machines.entryInfoList({ u"*.json"_s }, QDir::Files, QDir::Name))
        names.append(file.completeBaseName());
    return names;
}

} // namespace ferrin::test
