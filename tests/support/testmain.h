// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QCoreApplication>
#include <QTest>
#ifdef QT_GUI_LIB
#include <QGuiApplication>
#endif

#include <type_traits>

namespace ferrin::test {

/// Runs one test class in this process and returns the number of its failures.
using TestRun = int (*)(int argc, char **argv);

/// Registers the test class of a source file, "test_UNIT.cpp", with the main function of the
/// executable, which selects it by the name UNIT.
class TestRegistration
{
public:
    TestRegistration(const char *sourceFile, TestRun run);
};

template <class Application, class Test>
int runTest(int argc, char **argv)
{
    QTest::Internal::callInitMain<Test>();
    const auto run = [&] {
        Test test;
        return QTest::qExec(&test, argc, argv);
    };
    if constexpr (std::is_void_v<Application>) {
        return run();
    } else {
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
        const Application application(argc, argv);
        return run();
    }
}

} // namespace ferrin::test

/// Takes the place of QTEST_MAIN where several test classes share an executable. The application is
/// QGuiApplication, QCoreApplication, or void for a test that needs none.
#define FERRIN_TEST(Application, Test)                                                             \
    static const ferrin::test::TestRegistration registration(                                      \
        __FILE__, &ferrin::test::runTest<Application, Test>);
