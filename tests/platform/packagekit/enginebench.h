// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/packagekitengine.h"
#include "tests/platform/packagekit/fakepackagekit.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QTest>

namespace ferrin::test {

/// The engine on a bus with a PackageKit of the test's own, and all that it tells.
struct EngineBench
{
    EngineBench()
    {
        QObject::connect(&engine, &UpdateEngine::checked,
                         [this](const std::optional<Release> &newer) {
                             events.append(QStringLiteral("checked"));
                             found = newer;
                         });
        QObject::connect(&engine, &UpdateEngine::downloaded,
                         [this] { events.append(QStringLiteral("downloaded")); });
        QObject::connect(&engine, &UpdateEngine::installed,
                         [this] { events.append(QStringLiteral("installed")); });
        QObject::connect(&engine, &UpdateEngine::progressed,
                         [this](const UpdateProgress &each) { progress = each; });
        QObject::connect(&engine, &UpdateEngine::failed, [this](const UpdateTrouble &each) {
            events.append(logName(each.failure));
            trouble = each;
        });
    }

    void check() { engine.check(UpdateManner::interactive); }
    /// Answers for the programs of the package system.
    void read(QObject *, const QString &program, const QStringList &,
              const std::function<void(const QByteArray &)> &answer)
    {
        programs.append(program);
        answer(outputs.value(program));
    }

    PrivateBus bus;
    FakePackageKit service { bus.connect() };
    QHash<QString, QByteArray> outputs;
    QStringList programs;
    QStringList events;
    std::optional<Release> found;
    UpdateProgress progress;
    UpdateTrouble trouble;
    LogCapture log;
    PackageKitEngine engine { { .bus = bus.connect(),
                                .program = QStringLiteral("/usr/bin/ferrin"),
                                .read =
                                    [this](QObject *context, const QString &program,
                                           const QStringList &arguments,
                                           const std::function<void(const QByteArray &)> &answer) {
                                        read(context, program, arguments, answer);
                                    },
                                .timeout = std::chrono::milliseconds(300) } };
    const Release release { QStringLiteral("1.1"),
                            QStringLiteral("ferrin;1.1-1;amd64;ferrin-stable-main"),
                            {},
                            4'200'000,
                            {} };
};

} // namespace ferrin::test
