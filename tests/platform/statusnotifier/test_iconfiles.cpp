// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/iconfiles.h"
#include "tests/platform/support/contents.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class IconFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void hasAFileForEveryIconAtEveryCharge();
    void drawsEveryIconDifferently();
    void isAnEmptyImageWhereTheUserWantsNoIcon();
    void removesItsFiles();

private:
    QImage imageOf(IconFiles &files, const ItemContent &content);

    QTemporaryDir m_runtime;
};

void IconFilesTest::init()
{
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
    QFile::setPermissions(m_runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QImage IconFilesTest::imageOf(IconFiles &files, const ItemContent &content)
{
    const QString name = files.nameFor(content);
    QSvgRenderer renderer(files.folder() + u'/' + name + u".svg"_s);
    QImage image(48, 48, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!renderer.isValid())
        return {};
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

void IconFilesTest::hasAFileForEveryIconAtEveryCharge()
{
    IconFiles files;
    ItemContent content = dischargingAt(50, u"1:00"_s);
    for (const Icon icon : allIcons()) {
        for (int charge = 0; charge <= 100; ++charge) {
            for (const auto status :
                 { BatteryChargingStatus::discharging, BatteryChargingStatus::charged }) {
                content.icon
                    = IconElement { .icon = icon, .charge = double(charge), .status = status };
                const QString name = files.nameFor(content);
                QVERIFY2(QFile::exists(files.folder() + u'/' + name + u".svg"_s), qPrintable(name));
            }
        }
    }
}

void IconFilesTest::drawsEveryIconDifferently()
{
    IconFiles files;
    ItemContent content = dischargingAt(50, u"1:00"_s);
    QList<QImage> images;
    for (const Icon icon : allIcons()) {
        content.icon->icon = icon;
        const QImage image = imageOf(files, content);
        QVERIFY(!image.isNull());
        QVERIFY2(!images.contains(image), qPrintable(rawValue(icon)));
        images.append(image);
    }
}

void IconFilesTest::isAnEmptyImageWhereTheUserWantsNoIcon()
{
    IconFiles files;
    ItemContent content = dischargingAt(50, u"1:00"_s);
    content.icon.reset();
    const QString name = files.nameFor(content);
    QVERIFY(QFile::exists(files.folder() + u'/' + name + u".svg"_s));
}

void IconFilesTest::removesItsFiles()
{
    QString folder;
    {
        IconFiles files;
        QVERIFY(files.folder().isEmpty());
        QVERIFY(!files.nameFor(dischargingAt(50, u"1:00"_s)).isEmpty());
        folder = files.folder();
        QVERIFY(QFile::exists(folder));
    }
    QVERIFY(!QFile::exists(folder));
}

FERRIN_TEST(QGuiApplication, IconFilesTest)
#include "test_iconfiles.moc"
