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
    void open(const QUrl &link) override { opened.append(link); }

    QList<QUrl> opened;
};

} // namespace ferrin::test
