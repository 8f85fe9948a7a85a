// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/layeredwindows.h"
#include "platform/linux/ownbar/ownbar.h"
#include "tests/support/testmain.h"

#include <QTest>
#include <QWindow>

using namespace ferrin;

namespace {

const QRect screen(1000, 0, 800, 600);

} // namespace

class LayerShellTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsAtTheNearestEdges_data()
    {
        QTest::addColumn<QRect>("frame");
        QTest::addColumn<LayerPlace>("place");
        QTest::newRow("in the corner")
            << QRect(1700, 0, 100, 24) << LayerPlace { Qt::TopEdge | Qt::RightEdge, {} };
        QTest::newRow("off the corner")
            << QRect(1394, 6, 400, 200)
            << LayerPlace { Qt::TopEdge | Qt::RightEdge, { 0, 6, 6, 0 } };
        QTest::newRow("low at the left")
            << QRect(1010, 570, 100, 24)
            << LayerPlace { Qt::BottomEdge | Qt::LeftEdge, { 10, 0, 0, 6 } };
        QTest::newRow("in the middle")
            << QRect(1350, 250, 100, 100)
            << LayerPlace { Qt::TopEdge | Qt::RightEdge, { 0, 250, 350, 0 } };
    }

    void standsAtTheNearestEdges()
    {
        QFETCH(QRect, frame);
        QFETCH(LayerPlace, place);
        QCOMPARE(layerPlaceFor(frame, screen), place);
    }

    void leavesWindowsAloneWhereThereAreNoLayers()
    {
        LayeredWindows layers;
        QVERIFY(!layers.isPossible());
        QWindow window;
        const Qt::WindowFlags flags = window.flags();
        layers.prepare(window, LayerShell::Kind::Popover);
        QVERIFY(!layers.contains(&window));
        QCOMPARE(window.flags(), flags);
        QVERIFY(!window.handle());
    }

    void aBarIsPossibleWhereverWindowsHaveTheirPlaces() { QVERIFY(OwnBar::isPossible()); }
};

FERRIN_TEST(QGuiApplication, LayerShellTest)
#include "test_layershell.moc"
