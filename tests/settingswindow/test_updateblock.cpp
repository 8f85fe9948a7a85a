// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/stage.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Block
{
    explicit Block(UpdateSupport support = UpdateSupport::full)
    {
        stage.updatePlatform.engine.setSupport(support);
        open();
    }

    void open()
    {
        view = stage.show("Item { width: 460; height: 200; AppUpdateView { width: 460 } }");
        button = test::itemsOfType(view, "ProminentButton").value(0);
        switches = test::itemsOfType(view, "SwitchView");
    }
    [[nodiscard]] bool isOn(int index) const { return switches[index]->property("isOn").toBool(); }
    [[nodiscard]] QAccessible::State spokenState(QQuickItem *item) const
    {
        return QAccessible::queryAccessibleInterface(item)->state();
    }

    test::SettingsStage stage;
    // Heard once the stage stands.
    test::LogCapture log;
    QQuickItem *view = nullptr;
    QQuickItem *button = nullptr;
    QList<QQuickItem *> switches;
};

} // namespace

class UpdateBlockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheButtonAboveTheSwitches()
    {
        Block f;
        QCOMPARE(test::textsOf(f.view),
                 (QStringList { u"Updates"_s, u"Check for Updates\u2026"_s,
                                u"Automatically check for updates"_s,
                                u"Automatically download updates"_s }));
        const auto top = [](const QQuickItem *item) { return item->mapToScene({}).y(); };
        QCOMPARE(top(f.switches[0]), top(f.button) + f.button->height() + 10);
        QCOMPARE(f.button->mapToScene({}).x(), f.switches[0]->mapToScene({}).x());
        QCOMPARE(f.switches[0]->width(), 460.0 - 24);
    }

    void beginsWithWhatTheUpdaterHolds()
    {
        Block f;
        QCOMPARE(f.isOn(0), f.stage.updater.automaticallyChecksForUpdates());
        QCOMPARE(f.isOn(1), f.stage.updater.automaticallyDownloadsUpdates());
        f.stage.updater.setAutomaticallyChecksForUpdates(!f.isOn(0));
        f.stage.updater.setAutomaticallyDownloadsUpdates(!f.isOn(1));
        f.open();
        QCOMPARE(f.isOn(0), f.stage.updater.automaticallyChecksForUpdates());
        QCOMPARE(f.isOn(1), f.stage.updater.automaticallyDownloadsUpdates());
    }

    void writesEveryChangeToTheUpdater()
    {
        Block f;
        for (int round = 0; round < 2; ++round) {
            const bool checks = f.isOn(0);
            const bool downloads = f.isOn(1);
            f.stage.click(f.switches[0]);
            QCOMPARE(f.isOn(0), !checks);
            QCOMPARE(f.stage.updater.automaticallyChecksForUpdates(), !checks);
            QCOMPARE(f.stage.updater.automaticallyDownloadsUpdates(), downloads);
            f.stage.click(f.switches[1]);
            QCOMPARE(f.isOn(1), !downloads);
            QCOMPARE(f.stage.updater.automaticallyDownloadsUpdates(), !downloads);
        }
    }

    void keepsWhatItShowsWhenTheUpdaterIsSwitchedElsewhere()
    {
        Block f;
        const bool checks = f.isOn(0);
        f.stage.updater.setAutomaticallyChecksForUpdates(!checks);
        QCoreApplication::processEvents();
        QCOMPARE(f.isOn(0), checks);
    }

    void checksAtAClickAndRestsUntilTheAnswer()
    {
        Block f;
        QVERIFY(f.button->isEnabled());
        f.stage.click(f.button);
        QCOMPARE(f.stage.updatePlatform.engine.checks.size(), 1);
        QVERIFY(!f.button->isEnabled());
        QCOMPARE(f.button->opacity(), 0.5);
        f.stage.click(f.button);
        QCOMPARE(f.stage.updatePlatform.engine.checks.size(), 1);
        f.stage.updates.dismiss();
        QVERIFY(f.button->isEnabled());
        QCOMPARE(f.button->opacity(), 1);
    }

    void isWorkedByTheKeyboardAlone()
    {
        Block f;
        f.stage.window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&f.stage.window));
        const bool downloads = f.isOn(1);
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.button->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Space);
        QCOMPARE(f.stage.updatePlatform.engine.checks.size(), 1);
        f.stage.updates.dismiss();
        QVERIFY(f.button->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.switches[0]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QTest::keyClick(&f.stage.window, Qt::Key_Space);
        QCOMPARE(f.stage.updater.automaticallyDownloadsUpdates(), !downloads);
    }

    void tellsAScreenReaderWhatThereIs()
    {
        Block f;
        const auto role
            = [](QQuickItem *item) { return QAccessible::queryAccessibleInterface(item)->role(); };
        QCOMPARE(role(f.button), QAccessible::Button);
        QCOMPARE(test::spokenNameOf(f.button), u"Check for Updates\u2026"_s);
        QCOMPARE(role(f.switches[0]), QAccessible::CheckBox);
        QCOMPARE(test::spokenNameOf(f.switches[0]), u"Automatically check for updates"_s);
        QCOMPARE(bool(f.spokenState(f.switches[0]).checked), f.isOn(0));
    }

    void tellsAScreenReaderThatTheButtonRests()
    {
        Block f;
        const auto described = [&f] {
            return QAccessible::queryAccessibleInterface(f.button)->text(QAccessible::Description);
        };
        QCOMPARE(described(), QString());
        f.stage.click(f.button);
        QCOMPARE(described(), u"A check is running"_s);
        f.stage.updates.dismiss();
        QCOMPARE(described(), QString());
    }

    void isWholeAndDisabledWhereNothingCanBeUpdated_data()
    {
        QTest::addColumn<UpdateSupport>("support");
        QTest::addColumn<QString>("line");
        QTest::newRow("a build from the tree")
            << UpdateSupport::notPackaged
            << u"This copy of Ferrin was not installed as a package. It stays current when you "
               "build or install a newer one."_s;
        QTest::newRow("a Flatpak")
            << UpdateSupport::sandboxed
            << u"This copy of Ferrin is a Flatpak. Flatpak, or your software centre, keeps it current."_s;
        QTest::newRow("no service")
            << UpdateSupport::noService
            << u"PackageKit is not installed, so Ferrin cannot ask for updates. The system's "
               "package manager keeps it current."_s;
    }

    void isWholeAndDisabledWhereNothingCanBeUpdated()
    {
        QFETCH(UpdateSupport, support);
        QFETCH(QString, line);
        Block f(support);
        QCOMPARE(test::textsOf(f.view),
                 (QStringList { u"Updates"_s, u"Check for Updates\u2026"_s,
                                u"Automatically check for updates"_s,
                                u"Automatically download updates"_s, line }));
        QVERIFY(!f.button->isEnabled());
        QCOMPARE(QAccessible::queryAccessibleInterface(f.button)->text(QAccessible::Description),
                 line);
        for (QQuickItem *const each : f.switches) {
            const bool wasOn = each->property("isOn").toBool();
            QVERIFY(!each->isEnabled());
            f.stage.click(each);
            QMetaObject::invokeMethod(each, "flipped", Q_ARG(bool, !wasOn));
            QCOMPARE(each->property("isOn").toBool(), wasOn);
        }
        f.stage.click(f.button);
        QVERIFY(f.stage.updatePlatform.engine.checks.isEmpty());
    }

    void looksForTheServiceWhenItIsOpened()
    {
        Block f(UpdateSupport::noService);
        QCOMPARE(f.stage.updatePlatform.engine.refreshes, 1);
        f.stage.updatePlatform.engine.setSupport(UpdateSupport::full);
        QVERIFY(f.button->isEnabled());
        QVERIFY(f.switches[0]->isEnabled());
        QCOMPARE(test::textsOf(f.view).size(), 4);
    }

    void tellsWhatWasFoundInTheBackground()
    {
        Block f;
        f.stage.updater.session().beginInBackground(false);
        Q_EMIT f.stage.updatePlatform.engine.checked(
            Release { u"1.3.0"_s, u"ferrin;1.3.0;amd64;main"_s, {}, {}, {} });
        QCOMPARE(test::textsOf(f.view).constLast(), u"Ferrin 1.3.0 is available."_s);
        f.stage.updater.session().begin();
        QCOMPARE(test::textsOf(f.view).size(), 4);
        f.log.ignoreRest();
    }

    void tellsWhatFailedInTheBackground()
    {
        Block f;
        f.stage.updater.session().beginInBackground(false);
        Q_EMIT f.stage.updatePlatform.engine.failed({ UpdateFailure::notTrusted, {} });
        QCOMPARE(test::textsOf(f.view).constLast(),
                 u"The last update in the background did not succeed. "_s
                     + plainWords(UpdateFailure::notTrusted));
        f.log.ignoreRest();
    }
};

FERRIN_TEST(QGuiApplication, UpdateBlockTest)
#include "test_updateblock.moc"
