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
    [[nodiscard]] UpdateSupport support() const override { return m_support; }
    void setSupport(UpdateSupport support)
    {
        m_support = support;
        Q_EMIT supportChanged();
    }
    void refreshSupport() override { ++refreshes; }
    void check(UpdateManner manner) override { checks.append(manner); }
    void download(const Release &release, UpdateManner) override { downloads.append(release); }
    void install(const Release &release) override { installations.append(release); }
    void cancel() override { ++cancels; }

    int refreshes = 0;
    QList<UpdateManner> checks;
    QList<Release> downloads;
    QList<Release> installations;
    int cancels = 0;

private:
    UpdateSupport m_support = UpdateSupport::full;
};

} // namespace ferrin::test
