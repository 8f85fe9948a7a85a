// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/linkopener.h"

#include <QList>
#include <QUrl>

namespace ferrin::test {

/// Remembers the links that it was to open.
class FakeLinkOpener final : public LinkOpener
{
public:
    bool open(const QUrl &link) override
    {
        opened.append(link);
        return canOpen;
    }

    bool canOpen = true;
    QList<QUrl> opened;
};

} // namespace ferrin::test
