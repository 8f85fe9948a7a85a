// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/shareddefaults.h"

#include "state/defaultsstore.h"

#include <utility>

namespace ferrin {

namespace {

std::unique_ptr<DefaultsStore> &sharedStore()
{
    static std::unique_ptr<DefaultsStore> store;
    return store;
}

} // namespace

void setSharedDefaults(std::unique_ptr<DefaultsStore> store)
{
    sharedStore() = std::move(store);
}

DefaultsStore &sharedDefaults()
{
    if (!sharedStore())
        qFatal("The defaults store has not been opened");
    return *sharedStore();
}

} // namespace ferrin
