// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// A compositor that stops answering, as the program meets it: with its connection in Qt's hands.

#include "platform/linux/layers/layershell.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

/// A compositor of the test's own without a screen. To be made before the application object, which
/// then runs on it.
class PrivateCompositor
{
public:
    PrivateCompositor()
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
        qputenv("WAYLAND_DISPLAY", "wayland-test");
        qputenv("QT_QPA_PLATFORM", "wayland");
        PrivateBus::endWithTest(&m_process);
        m_process.start(
            u"weston"_s,
            { u"--backend=headless-backend.so"_s, u"--socket=wayland-test"_s, u"--idle-time=0"_s });
        if (!m_process.waitForStarted()
            || !QTest::qWaitFor([this] { return QFile::exists(socket()); }, 30'000))
            qFatal("There is no compositor for the test");
    }

    ~PrivateCompositor()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    PrivateCompositor(const PrivateCompositor &) = delete;
    PrivateCompositor &operator=(const PrivateCompositor &) = delete;

    void hang() const { ::kill(pid_t(m_process.processId()), SIGSTOP); }
    void goOn() const { ::kill(pid_t(m_process.processId()), SIGCONT); }

private:
    [[nodiscard]] QString socket() const { return m_runtime.filePath(u"wayland-test"_s); }

    QTemporaryDir m_runtime;
    QProcess m_process;
};

} // namespace

class HangingCompositorTest : public QObject
{
    Q_OBJECT

public:
    explicit HangingCompositorTest(const PrivateCompositor &compositor)
        : m_compositor(compositor)
    {
    }

private Q_SLOTS:
    void isSaidToHaveNoLayersWhileItHangs()
    {
        m_compositor.hang();
        LogCapture log;
        QVERIFY(!*LayerShell::shared());
        QCOMPARE(log.take(), QStringList(u"error: The Wayland compositor does not answer"_s));
        m_compositor.goOn();
    }

    void isAskedAgainOnceItAnswers()
    {
        const LogCapture log;
        // It has none, but it says so.
        QVERIFY(!*LayerShell::shared());
    }

private:
    const PrivateCompositor &m_compositor;
};

int main(int argc, char **argv)
{
    QTEST_SET_MAIN_SOURCE_PATH
    const PrivateCompositor compositor;
    const QGuiApplication application(argc, argv);
    HangingCompositorTest test(compositor);
    return QTest::qExec(&test, argc, argv);
}

#include "test_hangingcompositor.moc"
