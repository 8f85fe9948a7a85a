// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/windowsmodule.h"

#include "app/installation.h"
#include "base/logging.h"

#include <QPluginLoader>

namespace ferrin {

std::unique_ptr<Windows> loadWindows(const WindowsPlatform &platform)
{
    QPluginLoader loader(privateFolder() + QStringLiteral("/ferrin-windows.so"));
    if (auto *factory = qobject_cast<WindowsFactory *>(loader.instance()))
        return factory->create(platform);
    qCCritical(logger, "The windows cannot be opened: %s", qUtf8Printable(loader.errorString()));
    return nullptr;
}

} // namespace ferrin
