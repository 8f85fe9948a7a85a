// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/sandbox/sandbox.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace ferrin {

using namespace Qt::StringLiterals;

bool isInSandbox()
{
    // Flatpak puts it into every sandbox, and a program outside cannot be made to see one.
    return QFileInfo::exists(u"/.flatpak-info"_s);
}

QString sharedRuntimeFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QString application = qEnvironmentVariable("FLATPAK_ID");
    return isInSandbox() && !application.isEmpty() ? folder + u"/app/"_s + application : folder;
}

} // namespace ferrin
