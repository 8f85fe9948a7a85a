// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "app/windows.h"

#include <QStringList>

namespace ferrin::test {

/// Writes down what the application asks of its windows. The log outlives it.
class FakeWindows final : public Windows
{
public:
    explicit FakeWindows(QStringList &log)
        : m_log(log)
    {
    }

    void showDashboard(const ItemPlace &place) override
    {
        m_log.append(QStringLiteral("show"));
        shownAt = place;
    }
    [[nodiscard]] bool isOfDashboard(const QWindow &) const override { return false; }
    void hideDashboard() override { m_log.append(QStringLiteral("hide")); }
    void openWindow(const QString &identifier, const ItemPlace &place) override
    {
        m_log.append(identifier);
        shownAt = place;
    }
    [[nodiscard]] bool isAnyShown() const override { return areShown; }

    ItemPlace shownAt;
    bool areShown = false;

private:
    QStringList &m_log;
};

} // namespace ferrin::test
