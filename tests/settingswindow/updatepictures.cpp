// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Takes pictures of updates to be looked at, of the window at every stage and of the settings page
// with its block: update_pictures FOLDER FONT... With QT_SCALE_FACTOR they have more pixels.

#include "tests/settingswindow/updatescenes.h"

#include <QDir>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

using Bring = void (*)(test::UpdateScenes &);

struct Scene
{
    QString name;
    Bring bring;
    /// Of the settings page with the block, not of the window.
    bool isOfPage = false;
};

void take(const QString &folder, Appearance appearance, const QString &font, const Scene &scene)
{
    test::UpdateScenes f;
    f.stage.appearance.setAppearance(appearance);
    f.stage.appearance.setFontFamily(font);
    if (scene.bring)
        scene.bring(f);
    if (!scene.isOfPage) {
        f.show();
        QTest::qWait(50);
        f.view->setHeight(f.view->implicitHeight());
        f.stage.window.resize(f.view->size().toSize());
    } else {
        f.stage.status.setSettingsItemSelected(SettingsMenuButton::general);
        f.stage.show("SettingsView { focus: true }");
    }
    QTest::qWait(80);
    f.stage.picture().save(u"%1/%2-%3-%4-%5x.png"_s
                               .arg(folder, scene.name,
                                    appearance == Appearance::dark ? u"dark"_s : u"light"_s,
                                    QString(font).remove(u' '))
                               .arg(f.stage.window.devicePixelRatio()));
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationVersion(u"1.2.9"_s);
    const QString folder = app.arguments().value(1);
    QDir().mkpath(folder);
    const QList<Scene> scenes {
        { u"page"_s, nullptr, true },
        { u"page-unpackaged"_s,
          [](test::UpdateScenes &f) { f.engine().setSupport(UpdateSupport::notPackaged); }, true },
        { u"page-noservice"_s,
          [](test::UpdateScenes &f) { f.engine().setSupport(UpdateSupport::noService); }, true },
        { u"page-offered"_s, [](test::UpdateScenes &f) { f.offerInBackground(); }, true },
        { u"page-trouble"_s,
          [](test::UpdateScenes &f) {
              f.stage.updater.session().beginInBackground(false);
              Q_EMIT f.engine().failed({ UpdateFailure::notTrusted, u"a reason"_s });
          },
          true },
        { u"checking"_s, [](test::UpdateScenes &f) { f.check(); } },
        { u"uptodate"_s, [](test::UpdateScenes &f) { f.becomeUpToDate(); } },
        { u"available"_s, [](test::UpdateScenes &f) { f.offer(); } },
        { u"downloading"_s,
          [](test::UpdateScenes &f) {
              f.offer();
              f.stage.updates.download();
              f.receive(0.4);
          } },
        { u"ready"_s, [](test::UpdateScenes &f) { f.becomeReady(); } },
        { u"authorizing"_s,
          [](test::UpdateScenes &f) {
              f.install({ UpdateActivity::authorizing, std::nullopt, true });
          } },
        { u"installing"_s,
          [](test::UpdateScenes &f) {
              f.install({ UpdateActivity::installing, 0.4, false });
          } },
        { u"installed"_s,
          [](test::UpdateScenes &f) {
              f.install({ UpdateActivity::installing, 1.0, false });
              Q_EMIT f.engine().installed();
          } },
        { u"failed"_s, [](test::UpdateScenes &f) { f.fail(); } },
    };
    for (const Appearance appearance : { Appearance::light, Appearance::dark }) {
        for (const QString &font : app.arguments().sliced(2)) {
            for (const Scene &scene : scenes)
                take(folder, appearance, font, scene);
        }
    }
    return EXIT_SUCCESS;
}
