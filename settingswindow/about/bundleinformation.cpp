// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/about/bundleinformation.h"

#include "state/bundle.h"

#include <QFile>

namespace ferrin {

BundleInformation::BundleInformation(QObject *parent)
    : QObject(parent)
    , m_name(Bundle::main().name())
    , m_appVersion(Bundle::main().shortVersion())
    , m_buildNumber(Bundle::main().buildNumber())
{
}

BundleInformation *BundleInformation::create(QQmlEngine *, QJSEngine *)
{
    return new BundleInformation;
}

QString BundleInformation::text(const QString &resource) const
{
    QFile file(QStringLiteral(":/%1.txt").arg(resource));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

} // namespace ferrin
