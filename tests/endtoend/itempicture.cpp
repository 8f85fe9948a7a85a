// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// For the end-to-end tests: what a host's item is expected to look like, painted without a desktop.
//
//   item_picture PROCESS SCALE GROUND TEXT HEIGHT CONTENT...
//
// What a host of that process name is offered at that scale, on the desktop that the environment
// variable XDG_CURRENT_DESKTOP names: the picture of that height in device pixels, or the largest
// one brought to HEIGHT where that is "scaled:HEIGHT", or the one of another height,
// "OTHER:HEIGHT". It stands on a ground of one colour, in the colour that the host is known to
// write in, or on a chip where TEXT is "Dark" or "Light", the chip's tone. A content is
// STATUS,ICON,PERCENT,CHARGE,TIME, each of the last four "-" for absent, and ICON "fault" for the
// crossed-out battery. For each content it writes the width, the height and the grey values, row by
// row, as one line of numbers.

#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/statusnotifier/itempictures.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextStream>
#include <QtEndian>

#include <algorithm>
#include <map>
#include <optional>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

std::optional<QString> given(const QString &word)
{
    return word == u"-" ? std::nullopt : std::optional(word);
}

BatteryChargingStatus statusNamed(const QString &name)
{
    static const std::map<QString, BatteryChargingStatus> all {
        { u"discharging"_s, BatteryChargingStatus::discharging },
        { u"charging"_s, BatteryChargingStatus::charging },
        { u"charged"_s, BatteryChargingStatus::charged },
    };
    const auto found = all.find(name);
    return found == all.end() ? BatteryChargingStatus::unknown : found->second;
}

ItemContent contentIn(const QString &text)
{
    const QStringList words = text.split(u',');
    if (words.size() != 5)
        qFatal("Not a content: %s", qPrintable(text));
    ItemContent content { .status = statusNamed(words[0]),
                          .charge = given(words[3]),
                          .time = given(words[4]) };
    if (words[1] != u"-")
        content.icon = IconElement { .icon = iconFromRawValue(words[1]).value_or(Icon::battery1V),
                                     .charge = words[2].toDouble(),
                                     .status = content.status,
                                     .fault = words[1] == u"fault" };
    content.hasBattery = words[1] != u"fault";
    return content;
}

QImage imageOf(const IconPixmap &picture, bool premultiplied)
{
    QImage image(picture.width, picture.height,
                 premultiplied ? QImage::Format_ARGB32_Premultiplied : QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        qFromBigEndian<quint32>(picture.pixels.constData() + qsizetype(y) * image.width() * 4,
                                image.width(), image.scanLine(y));
    return image;
}

const IconPixmap &largest(const IconPixmapList &pictures)
{
    const auto area = [](const IconPixmap &picture) { return picture.width * picture.height; };
    return *std::max_element(
        pictures.begin(), pictures.end(),
        [&](const IconPixmap &one, const IconPixmap &other) { return area(one) < area(other); });
}

const IconPixmap &ofHeight(const IconPixmapList &pictures, int height)
{
    const auto found
        = std::find_if(pictures.begin(), pictures.end(),
                       [&](const IconPixmap &picture) { return picture.height == height; });
    if (found == pictures.end())
        qFatal("No picture of that height is offered: %d", height);
    return *found;
}

QImage offered(const IconPixmapList &pictures, const QString &height, bool premultiplied)
{
    const QStringList words = height.split(u':');
    const IconPixmap &picture = words.first() == u"scaled"
        ? largest(pictures)
        : ofHeight(pictures, words.first().toInt());
    const QImage image = imageOf(picture, premultiplied);
    if (words.size() == 1)
        return image;
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .scaledToHeight(words.last().toInt(), Qt::SmoothTransformation);
}

QImage onGround(const QImage &image, const QColor &ground)
{
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(ground);
    QPainter(&result).drawImage(0, 0, image);
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() < 7)
        qFatal("item_picture PROCESS SCALE GROUND TEXT HEIGHT CONTENT...");
    const HostProcess process { .name = words[1] };
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    const HostProfile &profile = profileFor(process, desktops);
    PanelColors colors;
    if (words[4] == u"Dark" || words[4] == u"Light")
        colors.setAppearance({ .forcedDark = words[4] == u"Dark" });
    else
        colors.setPanelText(profile.name, QColor(words[4]));
    const ViewContext context = colors.contextFor(profile.panel());
    QTextStream out(stdout);
    for (const QString &word : words.sliced(6)) {
        ItemPictures pictures;
        const QImage image
            = onGround(offered(pictures.pictures(profile, contentIn(word), context,
                                                 { .desktopScale = words[2].toDouble() }),
                               words[5], profile.premultiplied),
                       QColor(words[3]));
        out << image.width() << ' ' << image.height();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                out << ' ' << qGray(image.pixel(x, y));
        }
        out << '\n';
    }
    return 0;
}
