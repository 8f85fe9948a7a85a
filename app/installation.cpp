// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/installation.h"

#include <QCoreApplication>
#include <QDir>

namespace ferrin {

QString privateFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../libexec/ferrin"));
}

} // namespace ferrin
