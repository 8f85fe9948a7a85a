// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/statusnotifiertypes.h"

#include <QDBusMetaType>
#include <QImage>
#include <QtEndian>

namespace ferrin {

IconPixmap toIconPixmap(const QImage &image, bool premultiplied)
{
    const QImage argb = image.convertToFormat(premultiplied ? QImage::Format_ARGB32_Premultiplied
                                                            : QImage::Format_ARGB32);
    const qsizetype rowBytes = qsizetype(argb.width()) * 4;
    IconPixmap pixmap { .width = argb.width(),
                        .height = argb.height(),
                        .pixels = QByteArray(rowBytes * argb.height(), Qt::Uninitialized) };
    for (int y = 0; y < argb.height(); ++y)
        qToBigEndian<quint32>(argb.constScanLine(y), argb.width(),
                              pixmap.pixels.data() + y * rowBytes);
    return pixmap;
}

void registerStatusNotifierTypes()
{
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<IconPixmapList>();
    qDBusRegisterMetaType<StatusNotifierToolTip>();
}

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.pictures << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.pictures >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

} // namespace ferrin
