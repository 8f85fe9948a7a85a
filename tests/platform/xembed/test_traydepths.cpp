// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The docked window on screens of every depth that X servers have besides the usual one.

#include "platform/linux/xembed/dockedwindow.h"
#include "tests/platform/support/faketray.h"
#include "tests/platform/support/privatescreen.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <array>

using namespace ferrin;
using namespace ferrin::test;

namespace {

// Whole in five bits a channel, and in six.
const QColor barGround(0x21, 0x42, 0x63);
const QColor ink(0xff, 0x84, 0x00);

// What five bits a channel cannot tell apart.
constexpr int coarsest = 8;

bool isAbout(const QColor &found, const QColor &expected)
{
    return std::abs(found.red() - expected.red()) < coarsest
        && std::abs(found.green() - expected.green()) < coarsest
        && std::abs(found.blue() - expected.blue()) < coarsest;
}

} // namespace

class TrayDepthsTest : public QObject
{
    Q_OBJECT

public:
    explicit TrayDepthsTest(int depth)
        : m_depth(depth)
    {
    }

private Q_SLOTS:
    void init();
    void hasTheDepthOfTheScreen() { QCOMPARE(m_tray->depthOf(m_icon), m_depth); }
    void readsTheTraysGround();
    void showsItsPictureOnTheTraysGround();
    void cleanup();

private:
    int m_depth;
    std::unique_ptr<FakeTray> m_tray;
    std::unique_ptr<DockedWindow> m_window;
    xcb_window_t m_icon = 0;
};

void TrayDepthsTest::init()
{
    m_tray = std::make_unique<FakeTray>(barGround);
    m_window = std::make_unique<DockedWindow>(m_tray->window());
    std::optional<xcb_window_t> icon;
    QTRY_VERIFY(icon || (icon = m_tray->request()));
    m_icon = *icon;
    const QSignalSpy wanted(m_window.get(), &DockedWindow::pictureWanted);
    // Rows of an odd length are padded where a pixel has two bytes.
    m_tray->takeIn(m_icon, { 23, 22 });
    QTRY_VERIFY(!wanted.isEmpty());
    QTRY_COMPARE(m_window->size(), QSize(23, 22));
}

void TrayDepthsTest::cleanup()
{
    m_window.reset();
    m_tray.reset();
}

void TrayDepthsTest::readsTheTraysGround()
{
    const std::optional<QColor> ground = m_window->ground();
    QVERIFY(ground);
    QVERIFY2(isAbout(*ground, barGround), qPrintable(ground->name()));
}

void TrayDepthsTest::showsItsPictureOnTheTraysGround()
{
    QImage picture(23, 22, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(4, 5, ink);
    picture.setPixelColor(22, 21, Qt::white);
    m_window->show(picture);
    QTRY_VERIFY(isAbout(m_tray->pixel(m_icon, { 4, 5 }), ink));
    QVERIFY(isAbout(m_tray->pixel(m_icon, { 22, 21 }), Qt::white));
    QVERIFY(isAbout(m_tray->pixel(m_icon, { 5, 4 }), barGround));
    QVERIFY(isAbout(m_tray->pixel(m_icon, { 21, 21 }), barGround));
}

int main(int argc, char **argv)
{
    int failures = 0;
    for (const int depth : std::array { 15, 16, 30 }) {
        qInfo("On a screen of depth %d", depth);
        const PrivateScreen screen(depth);
        const QGuiApplication application(argc, argv);
        TrayDepthsTest test(depth);
        failures += QTest::qExec(&test, argc, argv);
    }
    return failures;
}

#include "test_traydepths.moc"
