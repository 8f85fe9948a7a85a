// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/testmain.h"

#include <QFileInfo>
#include <QMap>

#include <cstdio>

namespace ferrin::test {

namespace {

QMap<QString, TestRun> &tests()
{
    static QMap<QString, TestRun> map;
    return map;
}

} // namespace

TestRegistration::TestRegistration(const char *sourceFile, TestRun run)
{
    const QString name = QFileInfo(QString::fromLocal8Bit(sourceFile)).completeBaseName();
    tests().insert(name.sliced(name.indexOf(QLatin1Char('_')) + 1), run);
}

} // namespace ferrin::test

// One process per class, since the objects that a program shares are initialised only once.
int main(int argc, char *argv[])
{
    const auto &tests = ferrin::test::tests();
    const QString name = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (!tests.contains(name)) {
        std::fprintf(stderr, "usage: %s TEST [OPTION]...\nTESTs:\n", argv[0]);
        for (const QString &known : tests.keys())
            std::fprintf(stderr, "  %s\n", qPrintable(known));
        return 2;
    }
    argv[1] = argv[0];
    return tests.value(name)(argc - 1, argv + 1);
}
