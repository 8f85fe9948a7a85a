// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The program's package engine without its windows, worked by lines: updatedriver PROGRAM SECONDS
// reads "check", "download", "install", "cancel" and "support", and tells all that the engine
// tells, a JSON object a line. SECONDS are its timeout with a transaction that stands still.

#include "platform/linux/packagekit/packagekitengine.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>

#include <iostream>
#include <unistd.h>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

void tell(const QString &what, QJsonObject words = {})
{
    words.insert(u"event"_s, what);
    std::cout << QJsonDocument(words).toJson(QJsonDocument::Compact).constData() << std::endl;
}

QJsonObject jsonFrom(const Release &release)
{
    return { { u"version"_s, release.version },
             { u"package"_s, release.package },
             { u"date"_s, release.date ? release.date->toString(Qt::ISODate) : QString() },
             { u"size"_s, release.size.value_or(0) },
             { u"notes"_s, release.notes } };
}

class Driver
{
public:
    Driver(const QString &program, std::chrono::seconds timeout)
        : m_engine({ .bus = QDBusConnection::systemBus(), .program = program, .timeout = timeout })
    {
        QObject::connect(&m_engine, &UpdateEngine::checked,
                         [this](const std::optional<Release> &release) {
                             m_release = release.value_or(m_release);
                             tell(u"checked"_s, release ? jsonFrom(*release) : QJsonObject());
                         });
        QObject::connect(&m_engine, &UpdateEngine::downloaded, [] { tell(u"downloaded"_s); });
        QObject::connect(&m_engine, &UpdateEngine::installed, [] { tell(u"installed"_s); });
        QObject::connect(&m_engine, &UpdateEngine::supportChanged, [this] { tellSupport(); });
        QObject::connect(&m_engine, &UpdateEngine::progressed, [](const UpdateProgress &progress) {
            tell(u"progress"_s,
                 { { u"activity"_s, int(progress.activity) },
                   { u"done"_s, progress.done.value_or(-1) },
                   { u"canCancel"_s, progress.canCancel } });
        });
        QObject::connect(&m_engine, &UpdateEngine::failed, [](const UpdateTrouble &trouble) {
            tell(u"failed"_s,
                 { { u"failure"_s, logName(trouble.failure) },
                   { u"words"_s, plainWords(trouble.failure) },
                   { u"detail"_s, trouble.detail } });
        });
    }

    void obeyAll(const QByteArray &lines)
    {
        for (const QByteArray &line : lines.split('\n')) {
            if (!line.isEmpty())
                obey(line);
        }
    }

private:
    void obey(const QByteArray &order)
    {
        if (order == "check")
            m_engine.check(UpdateManner::interactive);
        else if (order == "download")
            m_engine.download(m_release, UpdateManner::interactive);
        else if (order == "install")
            m_engine.install(m_release);
        else if (order == "cancel")
            m_engine.cancel();
        else if (order == "support")
            m_engine.refreshSupport();
        else
            m_release.package = QString::fromUtf8(order);
    }

    void tellSupport() { tell(u"support"_s, { { u"support"_s, int(m_engine.support()) } }); }

    PackageKitEngine m_engine;
    Release m_release;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Driver driver(arguments.value(1), std::chrono::seconds(arguments.value(2).toInt()));
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&driver] {
        char lines[512];
        const ssize_t length = read(STDIN_FILENO, lines, sizeof lines);
        if (length <= 0)
            QCoreApplication::quit();
        else
            driver.obeyAll(QByteArray(lines, length));
    });
    return QCoreApplication::exec();
}
