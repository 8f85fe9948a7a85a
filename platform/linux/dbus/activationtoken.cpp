// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/dbus/activationtoken.h"

namespace ferrin {

namespace {

constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN";

} // namespace

bool keepActivationToken(const QString &token)
{
    constexpr qsizetype longestToken = 1024;
    if (token.size() > longestToken || token.contains(QChar::Null))
        return false;
    return qputenv(tokenVariable, token.toUtf8());
}

void forgetActivationToken()
{
    qunsetenv(tokenVariable);
}

} // namespace ferrin
