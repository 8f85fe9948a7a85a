// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Takes pictures of the menu bar icon's page to be looked at: settings_pictures FOLDER TEXTSCALE
// FONT... With QT_SCALE_FACTOR they have more pixels.

#include "tests/settingswindow/stage.h"

#include <QDir>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

class Photographer
{
public:
    Photographer(const QString &folder, Appearance appearance, double textScale,
                 const QString &font)
        : m_folder(folder)
        , m_prefix(u"%1-%2-%3-%4x"_s
                       .arg(appearance == Appearance::dark ? u"dark"_s : u"light"_s,
                            QString(font).remove(u' '))
                       .arg(textScale * 100)
                       .arg(m_stage.window.devicePixelRatio()))
    {
        m_stage.appearance.setAppearance(appearance);
        m_stage.appearance.setTextScale(textScale);
        m_stage.appearance.setFontFamily(font);
        m_stage.battery.setChargingStatus(BatteryChargingStatus::discharging);
        m_stage.panel.setPresent(
            PanelAppearance { .context = { .text = Qt::white, .red = Qt::red, .fontFamily = font },
                              .ground = QColor(0x2b, 0x2b, 0x2e) });
        m_view = m_stage.show("SettingsScene {}");
    }

    void takeAll()
    {
        take(u"page"_s);
        const QStringList names { u"discharging"_s, u"charging"_s, u"charged"_s };
        const auto buttons = test::itemsOfType(m_view, "SettingsMBIPopoverButtonView");
        for (int i = 0; i < 3; ++i) {
            m_stage.click(buttons[i]);
            take(names[i]);
            QTest::keyClick(&m_stage.window, Qt::Key_Right);
            QTest::keyClick(&m_stage.window, Qt::Key_Escape);
        }
        take(u"focused"_s);
        m_stage.switches.setShowIconWhenDischarging(false);
        m_stage.switches.setShowTimeWhenCharging(false);
        m_stage.switches.setShowIconWhenCharged(false);
        m_stage.switches.setShowChargeWhenCharged(false);
        QTest::qWait(200);
        take(u"off"_s);
    }

private:
    void take(const QString &scene)
    {
        QTest::qWait(50);
        m_stage.picture().save(u"%1/%2-%3.png"_s.arg(m_folder, m_prefix, scene));
    }

    test::SettingsStage m_stage;
    QString m_folder;
    QString m_prefix;
    QQuickItem *m_view = nullptr;
};

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    const QString folder = app.arguments().value(1);
    const double textScale = app.arguments().value(2).toDouble();
    QDir().mkpath(folder);
    for (const Appearance appearance : { Appearance::light, Appearance::dark }) {
        for (const QString &font : app.arguments().sliced(3))
            Photographer(folder, appearance, textScale, font).takeAll();
    }
    return EXIT_SUCCESS;
}
