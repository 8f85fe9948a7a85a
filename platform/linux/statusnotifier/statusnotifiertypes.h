// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>

class QImage;

namespace ferrin {

/// One picture as it travels on the bus, D-Bus signature (iiay).
struct IconPixmap
{
    /// Device pixels.
    int width = 0;
    int height = 0;
    /// ARGB32 in network byte order, row by row without padding.
    QByteArray pixels {};

    bool operator==(const IconPixmap &) const = default;
};

using IconPixmapList = QList<IconPixmap>;

/// D-Bus signature (sa(iiay)ss). Hosts read both texts as some markup or other: no '<' and no '&'.
struct StatusNotifierToolTip
{
    QString iconName {};
    IconPixmapList pictures {};
    QString title {};
    QString text {};

    bool operator==(const StatusNotifierToolTip &) const = default;
};

/// The image's pixels in network byte order; with straight alpha, or premultiplied for the hosts
/// that take them so.
[[nodiscard]] IconPixmap toIconPixmap(const QImage &image, bool premultiplied);

/// Makes the types above known to QtDBus; may be called often.
void registerStatusNotifierTypes();

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierToolTip &toolTip);

} // namespace ferrin

Q_DECLARE_METATYPE(ferrin::IconPixmap)
Q_DECLARE_METATYPE(ferrin::StatusNotifierToolTip)
