// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/packageinstaller.h"

#include <QStringList>

namespace ferrin::test {

class FakeInstaller final : public PackageInstaller
{
public:
    [[nodiscard]] bool install(const QString &path) override
    {
        if (isThere)
            handedOver.append(path);
        return isThere;
    }

    bool isThere = true;
    QStringList handedOver;
};

} // namespace ferrin::test
