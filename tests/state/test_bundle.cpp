// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/bundle.h"
#include "tests/support/testmain.h"

#include <QRegularExpression>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class BundleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheProgramThatRuns()
    {
        QCOMPARE(Bundle::main().identifier(), u"org.ferrin.Ferrin"_s);
        QCOMPARE(Bundle::main().name(), u"Ferrin"_s);
        static const QRegularExpression release(u"^\\d+\\.\\d+\\.\\d+$"_s);
        QVERIFY(release.match(Bundle::main().shortVersion()).hasMatch());
        QVERIFY(!Bundle::main().buildNumber().isEmpty());
    }

    void takesWhatIsMissingOrNoTextForAbsent()
    {
        const Bundle bundle({ { u"CFBundleVersion"_s, 7 } });
        QCOMPARE(bundle.information(u"CFBundleVersion"_s), std::nullopt);
        QCOMPARE(bundle.information(u"CFBundleName"_s), std::nullopt);
    }
};

FERRIN_TEST(void, BundleTest)
#include "test_bundle.moc"
