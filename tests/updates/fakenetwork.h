// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updateconditions.h"

#include <functional>
#include <utility>

namespace ferrin::test {

/// A connection that is as the test says, and says so at once or when the test lets it.
class FakeNetwork final : public NetworkCost
{
public:
    void ask(std::function<void(NetworkReach)> answer) override
    {
        ++asked;
        if (answersLater)
            waiting = std::move(answer);
        else
            answer(reach);
    }

    NetworkReach reach = NetworkReach::free;
    bool answersLater = false;
    std::function<void(NetworkReach)> waiting;
    int asked = 0;
};

} // namespace ferrin::test
