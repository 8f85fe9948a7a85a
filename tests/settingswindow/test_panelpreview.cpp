// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/iconstage.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const PanelAppearance darkPanel {
    .context = { .text = Qt::white, .red = Qt::red, .fontFamily = u"DejaVu Sans"_s },
    .ground = Qt::black
};

QQuickItem *previewIn(QQuickItem *section)
{
    return itemsOfType(section, "ferrin::PanelPreview").constFirst();
}

} // namespace

class PanelPreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isThereOnlyWhileAPanelShowsTheItem()
    {
        IconStage f;
        QQuickItem *const preview = previewIn(f.sections[0]);
        QVERIFY(!preview->isVisible());
        f.panel.setPresent(darkPanel);
        QVERIFY(preview->isVisible());
        QVERIFY(textsOf(f.sections[0]).contains(u"In your panel"_s));
        f.panel.setPresent({});
        QVERIFY(!preview->isVisible());
        QVERIFY(!textsOf(f.sections[0]).contains(u"In your panel"_s));
    }

    void isAsLargeAsThePanelsPicture()
    {
        IconStage f;
        f.panel.setPresent(darkPanel);
        QQuickItem *const preview = previewIn(f.sections[0]);
        QCOMPARE(preview->implicitWidth(), preview->implicitHeight() + 6);
        PanelAppearance wide = darkPanel;
        wide.form = ItemForm::Wide;
        f.panel.setPresent(wide);
        QVERIFY(preview->implicitWidth() > 1.5 * preview->implicitHeight());
    }

    void hasTheLabelOfPanelsThatDrawOne()
    {
        IconStage f;
        PanelAppearance panel = darkPanel;
        panel.form = ItemForm::Glyph;
        f.panel.setPresent(panel);
        const qreal without = previewIn(f.sections[0])->implicitWidth();
        panel.hasLabel = true;
        f.panel.setPresent(panel);
        QVERIFY(previewIn(f.sections[0])->implicitWidth() > without + 30);
    }
};

FERRIN_TEST(QGuiApplication, PanelPreviewTest)
#include "test_panelpreview.moc"
