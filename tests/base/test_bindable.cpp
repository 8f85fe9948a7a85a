// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "base/bindable.h"
#include "tests/support/testmain.h"

#include <QCoreApplication>
#include <QProperty>
#include <QTest>

using namespace ferrin;

class BindableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsThePropertyAsItIsNow()
    {
        QProperty<int> property(1);
        const Bindable<int> bindable(&property);
        QCOMPARE(bindable.value(), 1);
        property = 2;
        QCOMPARE(bindable.value(), 2);
    }

    void tellsOfEachChangeAsLongAsTheResultIsKept()
    {
        QProperty<int> property(1);
        int notifications = 0;
        {
            const auto notifier
                = Bindable<int>(&property).addNotifier([&notifications] { ++notifications; });
            property = 2;
            property = 2;
            QCOMPARE(notifications, 1);
        }
        property = 3;
        QCOMPARE(notifications, 1);
    }

    void isFollowedByABindingThatReadsIt()
    {
        QProperty<int> property(1);
        const Bindable<int> bindable(&property);
        const QProperty<int> twice([&bindable] { return 2 * bindable.value(); });
        property = 4;
        QCOMPARE(twice.value(), 8);
    }
};

FERRIN_TEST(QCoreApplication, BindableTest)
#include "test_bindable.moc"
