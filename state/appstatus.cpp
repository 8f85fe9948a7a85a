// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/appstatus.h"

namespace ferrin {

AppStatus &AppStatus::shared()
{
    static AppStatus status;
    return status;
}

} // namespace ferrin
