// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/updates/updatewindow.h"
#include "tests/settingswindow/updatescenes.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace Qt::StringLiterals;
using Stage = UpdateSession::Stage;

namespace {

struct Window : test::UpdateScenes
{
    Window() { show(); }

    [[nodiscard]] QStringList answers() const
    {
        QStringList texts;
        for (const QQuickItem *button : test::visibleItemsOfType(view, "Pressable"))
            texts.append(button->property("text").toString());
        return texts;
    }
    void press(const QString &answer)
    {
        // The buttons of a new stage are put into their places with the next picture.
        static_cast<void>(stage.picture());
        for (QQuickItem *button : test::visibleItemsOfType(view, "Pressable")) {
            if (button->property("text").toString() == answer) {
                stage.click(button);
                return;
            }
        }
        QFAIL(qPrintable(u"no answer "_s + answer));
    }
    [[nodiscard]] QString heading() const { return test::textsOf(view).constFirst(); }
    [[nodiscard]] QString message() const { return test::textsOf(view).value(1); }
    [[nodiscard]] QString focused() const
    {
        const QQuickItem *const item = stage.window.activeFocusItem();
        return item ? item->property("text").toString() : QString();
    }
    [[nodiscard]] bool activate()
    {
        stage.window.requestActivate();
        return QTest::qWaitForWindowActive(&stage.window);
    }
    [[nodiscard]] Stage stageNow() { return stage.updater.session().stage(); }
};

} // namespace

class UpdateViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setApplicationVersion(u"1.2.9"_s); }

    void checksWithAWayToStop()
    {
        Window f;
        f.check();
        QCOMPARE(f.heading(), u"Checking for updates\u2026"_s);
        QCOMPARE(f.message(), u"Asking the package sources."_s);
        QCOMPARE(test::visibleItemsOfType(f.view, "Spinner").size(), 1);
        QCOMPARE(f.answers(), QStringList(u"Cancel"_s));
        f.press(u"Cancel"_s);
        QCOMPARE(f.stageNow(), Stage::idle);
    }

    void movesTheSpinnerUnlessNothingMayMove()
    {
        Window f;
        f.check();
        QQuickItem *const spinner = test::itemsOfType(f.view, "Spinner").constFirst();
        QTRY_VERIFY(spinner->property("brightest").toInt() > 1);
        f.stage.appearance.setReducesMotion(true);
        const int brightest = spinner->property("brightest").toInt();
        QTest::qWait(250);
        QCOMPARE(spinner->property("brightest").toInt(), brightest);
    }

    void saysThatAllIsUpToDate()
    {
        Window f;
        f.becomeUpToDate();
        QCOMPARE(f.heading(), u"Ferrin is up to date"_s);
        QCOMPARE(f.message(), u"You have version 1.2.9. The package sources offer no newer one."_s);
        QCOMPARE(f.answers(), QStringList(u"Close"_s));
        f.press(u"Close"_s);
        QCOMPARE(f.stageNow(), Stage::idle);
    }

    void offersANewerVersionWithItsNotes()
    {
        Window f;
        f.offer();
        QCOMPARE(f.heading(), u"Ferrin 1.3.0 is available"_s);
        QCOMPARE(
            f.message(),
            u"It was released on 30 April 2026. The download is 4.2\u00a0MB. You have version 1.2.9."_s);
        QCOMPARE(f.answers(), (QStringList { u"Skip this version"_s, u"Later"_s, u"Download"_s }));
        QCOMPARE(test::visibleItemsOfType(f.view, "ReleaseNotesView").size(), 1);
    }

    void skipsAVersionForGood()
    {
        Window f;
        f.offer();
        f.press(u"Skip this version"_s);
        QCOMPARE(f.stageNow(), Stage::idle);
        QCOMPARE(UpdateRecords(f.stage.store).skippedVersion(), u"1.3.0"_s);
    }

    void leavesAVersionForLater()
    {
        Window f;
        f.offer();
        f.press(u"Later"_s);
        QCOMPARE(f.stageNow(), Stage::idle);
        QVERIFY(UpdateRecords(f.stage.store).skippedVersion().isEmpty());
    }

    void showsHowMuchIsDownloadedAndGoesBackToTheOffer()
    {
        Window f;
        f.offer();
        f.press(u"Download"_s);
        f.receive(0.25);
        QCOMPARE(f.heading(), u"Downloading Ferrin 1.3.0"_s);
        QCOMPARE(f.message(), u"1.1\u00a0MB of 4.2\u00a0MB"_s);
        QQuickItem *const bar = test::visibleItemsOfType(f.view, "ProgressBar").value(0);
        QVERIFY(bar);
        const QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(bar);
        QCOMPARE(spoken->role(), QAccessible::ProgressBar);
        QCOMPARE(spoken->text(QAccessible::Description), u"25 %"_s);
        QCOMPARE(f.answers(), QStringList(u"Cancel"_s));
        f.press(u"Cancel"_s);
        QCOMPARE(f.stageNow(), Stage::available);
    }

    void saysWhatItKnowsOfTheOffer()
    {
        Window f;
        f.release.date = std::nullopt;
        f.offer();
        QCOMPARE(f.message(), u"The download is 4.2\u00a0MB. You have version 1.2.9."_s);
        f.release.size = std::nullopt;
        f.release.notes.clear();
        f.offer();
        QCOMPARE(f.message(), u"You have version 1.2.9."_s);
        QVERIFY(test::visibleItemsOfType(f.view, "ReleaseNotesView").isEmpty());
    }

    void showsNotesAsTheyAreWritten()
    {
        Window f;
        f.offer();
        QQuickItem *const notes = test::visibleItemsOfType(f.view, "ReleaseNotesView").value(0);
        QVERIFY(test::textsOf(notes).constFirst().contains(u"<b>words</b>"));
        QCOMPARE(test::itemsOfType(notes, "QQuickText")[0]->property("textFormat").toInt(),
                 int(Qt::PlainText));
    }

    void offersToInstallWhatIsDownloaded()
    {
        Window f;
        f.becomeReady();
        QCOMPARE(f.heading(), u"Ferrin 1.3.0 is ready to install"_s);
        QCOMPARE(f.answers(), (QStringList { u"Skip this version"_s, u"Later"_s, u"Install"_s }));
        f.press(u"Install"_s);
        QCOMPARE(f.engine().installations.size(), 1);
        QCOMPARE(f.stageNow(), Stage::installing);
    }

    void saysWhatTheInstallationWaitsFor()
    {
        Window f;
        f.install({ UpdateActivity::authorizing, std::nullopt, true });
        QCOMPARE(f.heading(), u"Installing Ferrin 1.3.0"_s);
        QCOMPARE(f.message(), u"Waiting for your password."_s);
        Q_EMIT f.engine().progressed({ UpdateActivity::waiting, std::nullopt, true });
        QCOMPARE(f.message(), u"Waiting for another installation to finish."_s);
        QCOMPARE(f.answers(), QStringList(u"Cancel"_s));
        f.press(u"Cancel"_s);
        QCOMPARE(f.stageNow(), Stage::readyToInstall);
    }

    void cannotBeCancelledWhileThePackageManagerWrites()
    {
        Window f;
        f.install({ UpdateActivity::installing, 0.4, false });
        QVERIFY(!test::visibleItemsOfType(f.view, "Pressable").constFirst()->isEnabled());
        f.press(u"Cancel"_s);
        QTest::keyClick(&f.stage.window, Qt::Key_Escape);
        QCOMPARE(f.stageNow(), Stage::installing);
        QCOMPARE(f.engine().cancels, 0);
    }

    void saysThatTheNewVersionIsInstalled()
    {
        Window f;
        f.install({ UpdateActivity::installing, 0.4, false });
        Q_EMIT f.engine().installed();
        QCOMPARE(f.heading(), u"Ferrin 1.3.0 is installed"_s);
        QCOMPARE(f.message(), u"Ferrin restarts by itself once its windows are closed."_s);
        f.press(u"Close"_s);
        QCOMPARE(f.stageNow(), Stage::idle);
    }

    void saysInPlainWordsWhatFailedAndTriesAgain()
    {
        Window f;
        f.fail();
        QCOMPARE(f.heading(), u"The update did not succeed"_s);
        QCOMPARE(f.message(), plainWords(UpdateFailure::unreachable));
        QCOMPARE(f.answers(), (QStringList { u"Close"_s, u"Try again"_s }));
        f.press(u"Try again"_s);
        QCOMPARE(f.stageNow(), Stage::checking);
        f.fail();
        f.press(u"Close"_s);
        QCOMPARE(f.stageNow(), Stage::idle);
    }

    void isWorkedByTheKeyboardAlone()
    {
        Window f;
        f.release.notes = u"Short."_s;
        QVERIFY(f.activate());
        f.offer();
        QCoreApplication::processEvents();
        for (const QString &name : { u"Skip this version"_s, u"Later"_s, u"Download"_s }) {
            QTest::keyClick(&f.stage.window, Qt::Key_Tab);
            QCOMPARE(f.focused(), name);
        }
        QTest::keyClick(&f.stage.window, Qt::Key_Backtab);
        QCOMPARE(f.focused(), u"Later"_s);
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QTest::keyClick(&f.stage.window, Qt::Key_Return);
        QCOMPARE(f.stageNow(), Stage::downloading);
        QTest::keyClick(&f.stage.window, Qt::Key_Escape);
        QCOMPARE(f.stageNow(), Stage::available);
        QTest::keyClick(&f.stage.window, Qt::Key_Escape);
        QCOMPARE(f.stageNow(), Stage::idle);
    }

    void f1OpensTheFrequentlyAskedQuestions()
    {
        Window f;
        QVERIFY(f.activate());
        f.offer();
        QTest::keyClick(&f.stage.window, Qt::Key_F1);
        QCOMPARE(f.stage.opener.opened, QList<QUrl> { QUrl(u"file:///faq.html"_s) });
        QCOMPARE(f.stageNow(), Stage::available);
    }

    void heedsNoKeyThatWasMeantForSomethingElse()
    {
        Window f;
        QVERIFY(f.activate());
        f.offer();
        for (const Stage stage : { Stage::available, Stage::readyToInstall }) {
            for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space })
                QTest::keyClick(&f.stage.window, key);
            QCOMPARE(f.stageNow(), stage);
            if (stage == Stage::available) {
                f.stage.updates.download();
                Q_EMIT f.engine().downloaded();
            }
        }
        QVERIFY(f.engine().installations.isEmpty());
    }

    void tellsAScreenReaderWhatItIsAt()
    {
        Window f;
        f.offer();
        const QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(f.view);
        QCOMPARE(spoken->role(), QAccessible::Dialog);
        QCOMPARE(spoken->text(QAccessible::Name), u"Ferrin 1.3.0 is available"_s);
        QCOMPARE(spoken->text(QAccessible::Description), f.message());
    }

    void opensWhileThereIsASessionAndClosesWithIt()
    {
        test::UpdateScenes f;
        UpdateWindow window(f.stage.engine, f.stage.updates);
        window.open(nullptr);
        QVERIFY(!window.isVisible());
        f.check();
        window.open(nullptr);
        QVERIFY(window.isVisible());
        QCOMPARE(window.title(), u"Software Update"_s);
        const int height = window.height();
        f.answerWithOffer();
        QTRY_VERIFY(window.height() > height);
        QCOMPARE(window.minimumSize(), window.maximumSize());
        f.stage.updates.later();
        QVERIFY(!window.isVisible());
    }

    void opensOverTheSettings()
    {
        test::UpdateScenes f;
        QWindow settings;
        settings.setGeometry(300, 200, 400, 300);
        UpdateWindow window(f.stage.engine, f.stage.updates);
        f.check();
        window.open(QGuiApplication::primaryScreen(), &settings);
        QCOMPARE(window.screen(), settings.screen());
        const QPoint apart = window.geometry().center() - settings.geometry().center();
        QVERIFY2(apart.manhattanLength() <= 2, qPrintable(QString::number(apart.x())));
    }

    void endsTheSessionWhenItIsClosed()
    {
        test::UpdateScenes f;
        UpdateWindow window(f.stage.engine, f.stage.updates);
        f.offer();
        f.stage.updates.download();
        window.open(nullptr);
        QVERIFY(window.close());
        QCOMPARE(f.stage.updater.session().stage(), Stage::idle);
        QCOMPARE(f.stage.updatePlatform.engine.cancels, 1);
    }
};

FERRIN_TEST(QGuiApplication, UpdateViewTest)
#include "test_updateview.moc"
