// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateengine.h"

#include <QList>

namespace ferrin::test {

/// An engine that writes down its tasks; the test lets it answer.
class FakeEngine final : public UpdateEngine
{
    Q_OBJECT

public:
    void check(const UpdateCheck &check) override { checks.append(check); }
    void download(const PackageRequest &request) override { downloads.append(request); }
    void cancel() override { ++cancels; }

    QList<UpdateCheck> checks;
    QList<PackageRequest> downloads;
    int cancels = 0;
};

} // namespace ferrin::test
