// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sheets.h"

#include "menubar/iconview.h"
#include "menubar/itemform.h"
#include "menubar/templateimageview.h"
#include "state/icon.h"

#include <QDir>
#include <QFont>
#include <QPainter>

#include <array>
#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array charges { 5, 37, 80, 100 };
constexpr int margin = 12;

ViewContext contextOf(const SheetTheme &theme)
{
    return { .text = theme.text, .red = theme.red, .fontFamily = theme.fontFamily };
}

void drawLabel(QPainter &painter, const QRect &rect, const QString &text, const SheetTheme &theme)
{
    QFont font(theme.fontFamily);
    font.setPixelSize(10);
    painter.setFont(font);
    QColor color = theme.text;
    color.setAlphaF(0.7f);
    painter.setPen(color);
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, text);
}

/// An icon as it appears in a panel of 22 pixels.
QImage iconPicture(Icon icon, int charge, qreal scale, const SheetTheme &theme)
{
    const bool whileDischarging = charge <= 10 && isGlyph(icon);
    const IconView view { .icon = icon,
                          .charge = double(charge),
                          .status = whileDischarging ? BatteryChargingStatus::discharging
                                                     : BatteryChargingStatus::charging };
    QImage image(QSize(26, 22) * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    AnyView(view).paint(painter, QRectF(0, 0, 26, 22), contextOf(theme));
    return image;
}

/// The artwork of the windows: symbols that are no icons of the item, and those icons that the
/// windows show, too.
QStringList windowSymbols()
{
    QStringList names { u"bolt.circle"_s, u"bolt.fill"_s };
    QStringList ofTheItem;
    for (const Icon icon : allIcons())
        ofTheItem.append(rawValue(icon));
    for (QString name : QDir(u":/symbols"_s).entryList(QDir::Files)) {
        name.chop(4);
        const bool part = name.contains(u"Batt"_s) || name.contains(u"Bolt"_s);
        if (!part && !ofTheItem.contains(name))
            names.append(name);
    }
    names.sort();
    return names;
}

QImage symbolPicture(const QString &name, int height, qreal scale, const SheetTheme &theme)
{
    const TemplateImageView view { .name = name, .height = height };
    const ViewContext context = contextOf(theme);
    const QSizeF size(std::ceil(view.idealSize(context).width()), height);
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    view.paint(painter, QRectF(QPointF(0, 0), size), context);
    return image;
}

ItemContent content(BatteryChargingStatus status, std::optional<Icon> icon, double charge,
                    const std::optional<QString> &chargeText, const std::optional<QString> &time)
{
    ItemContent result { .status = status, .charge = chargeText, .time = time };
    if (icon)
        result.icon = IconElement { .icon = *icon, .charge = charge, .status = status };
    return result;
}

std::vector<ItemContent> sampleContents()
{
    using enum BatteryChargingStatus;
    std::vector<ItemContent> samples {
        content(discharging, Icon::battery2H, 37, u"37"_s, u"4:29"_s),
        content(discharging, Icon::battery1V, 8, u"8"_s, u"0:09"_s),
        content(charging, Icon::battery2HWithBolt, 78, u"78"_s, u"0:52"_s),
        content(charging, Icon::battery1HWithBolt, 78, u"78"_s, u"0:52"_s),
        content(charging, Icon::arrowUpCircle, 78, u"78"_s, u"12:05"_s),
        content(discharging, Icon::battery2VBlack, 100, u"100"_s, u"12:05"_s),
        content(discharging, Icon::battery2HInverted, 50, u"??"_s, u"?:??"_s),
        content(charged, Icon::battery2HBlackWithBolt, 100, u"100"_s, {}),
        content(charged, Icon::poweroutletTypeC, 100, u"100"_s, {}),
        content(discharging, Icon::battery2H, 37, {}, u"4:29"_s),
        content(discharging, Icon::arrowshapeDown, 37, {}, u"4:29"_s),
        content(discharging, {}, 37, u"37"_s, u"4:29"_s),
        content(discharging, {}, 37, u"37"_s, {}),
        content(charged, {}, 100, u"100"_s, {}),
        content(discharging, {}, 37, {}, u"12:05"_s),
        content(discharging, Icon::battery2H, 37, {}, {}),
        content(discharging, Icon::battery1V, 37, {}, {}),
        content(charging, Icon::boltFill, 37, {}, {}),
        content(discharging, Icon::battery1V, 50, u"??"_s, u"?:??"_s),
    };
    samples.back().icon->fault = true;
    samples.back().hasBattery = false;
    return samples;
}

struct FormColumn
{
    ItemForm form;
    int height;
    qreal scale;
    int room;
    const char *title;
};

constexpr std::array formColumns {
    FormColumn { ItemForm::Wide, 22, 1, 74, "wide 22" },
    FormColumn { ItemForm::Wide, 22, 2, 146, "wide 22 @2x" },
    FormColumn { ItemForm::OneLine, 16, 1, 100, "line 16" },
    FormColumn { ItemForm::OneLine, 24, 1, 150, "line 24" },
    FormColumn { ItemForm::Square, 16, 1, 24, "16" },
    FormColumn { ItemForm::Square, 19, 1, 27, "19" },
    FormColumn { ItemForm::Square, 22, 1, 30, "22" },
    FormColumn { ItemForm::Square, 24, 1, 32, "24" },
    FormColumn { ItemForm::Square, 32, 1, 40, "32" },
    FormColumn { ItemForm::Square, 22, 2, 54, "22 @2x" },
    FormColumn { ItemForm::Square, 22, 3, 76, "22 @3x" },
    FormColumn { ItemForm::Glyph, 16, 1, 32, "glyph" },
    FormColumn { ItemForm::Glyph, 22, 2, 54, "22 @2x" },
};

} // namespace

SheetTheme lightTheme(const QString &fontFamily)
{
    return { .bar = QColor(0xf2, 0xf1, 0xf0),
             .text = QColor(Qt::black),
             .red = QColor(0xff, 0x3b, 0x30),
             .fontFamily = fontFamily };
}

SheetTheme darkTheme(const QString &fontFamily)
{
    return { .bar = QColor(0x26, 0x28, 0x2c),
             .text = QColor(Qt::white),
             .red = QColor(0xff, 0x45, 0x3a),
             .fontFamily = fontFamily };
}

QImage iconSheet(const SheetTheme &theme)
{
    constexpr int rows = 18;
    constexpr int rowHeight = 48;
    constexpr int labelWidth = 150;
    constexpr int blockWidth = labelWidth + int(charges.size()) * (30 + 56) + 2 * margin;
    const auto icons = allIcons();
    const int blocks = int(icons.size() + rows - 1) / rows;
    QImage sheet(blocks * blockWidth, rows * rowHeight + 2 * margin, QImage::Format_RGB32);
    sheet.fill(theme.bar);

    QPainter painter(&sheet);
    for (std::size_t i = 0; i < icons.size(); ++i) {
        const QPoint origin(int(i) / rows * blockWidth + margin,
                            int(i) % rows * rowHeight + margin);
        drawLabel(painter, QRect(origin, QSize(labelWidth, rowHeight)), rawValue(icons[i]), theme);
        int x = origin.x() + labelWidth;
        for (const qreal scale : { 1.0, 2.0 }) {
            for (const int charge : charges) {
                const QImage picture = iconPicture(icons[i], charge, scale, theme);
                painter.drawImage(x, origin.y() + (rowHeight - picture.height()) / 2, picture);
                x += picture.width() + 4;
            }
        }
    }
    return sheet;
}

QImage symbolSheet(const SheetTheme &theme)
{
    constexpr std::array heights { 11, 18, 26 };
    constexpr int rows = 16;
    constexpr int rowHeight = 64;
    constexpr int labelWidth = 280;
    constexpr int blockWidth = labelWidth + 3 * (11 + 18 + 26) * 3 / 2 + 6 * 10 + 2 * margin;
    const QStringList names = windowSymbols();
    const int blocks = int(names.size() + rows - 1) / rows;
    QImage sheet(blocks * blockWidth, rows * rowHeight + 2 * margin, QImage::Format_RGB32);
    sheet.fill(theme.bar);

    QPainter painter(&sheet);
    for (int i = 0; i < names.size(); ++i) {
        const QPoint origin(i / rows * blockWidth + margin, i % rows * rowHeight + margin);
        drawLabel(painter, QRect(origin, QSize(labelWidth, rowHeight)), names[i], theme);
        int x = origin.x() + labelWidth;
        for (const qreal scale : { 1.0, 2.0 }) {
            for (const int height : heights) {
                const QImage picture = symbolPicture(names[i], height, scale, theme);
                painter.drawImage(x, origin.y() + (rowHeight - picture.height()) / 2, picture);
                x += int(height * scale * 1.5) + 10;
            }
        }
    }
    return sheet;
}

QImage formSheet(const SheetTheme &theme)
{
    constexpr int rowHeight = 72;
    constexpr int titleHeight = 20;
    const auto samples = sampleContents();
    int width = 2 * margin;
    for (const FormColumn &column : formColumns)
        width += column.room;
    QImage sheet(width, int(samples.size()) * rowHeight + titleHeight + 2 * margin,
                 QImage::Format_RGB32);
    sheet.fill(theme.bar);

    QPainter painter(&sheet);
    int x = margin;
    for (const FormColumn &column : formColumns) {
        drawLabel(painter, QRect(x, margin, column.room, titleHeight),
                  QString::fromLatin1(column.title), theme);
        int y = margin + titleHeight;
        for (const ItemContent &sample : samples) {
            const QImage picture
                = paintForm(column.form, sample, column.height, column.scale, contextOf(theme));
            painter.drawImage(x, y + (rowHeight - picture.height()) / 2, picture);
            y += rowHeight;
        }
        x += column.room;
    }
    return sheet;
}

} // namespace ferrin
