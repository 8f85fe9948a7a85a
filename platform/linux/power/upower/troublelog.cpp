// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/troublelog.h"

#include "base/logging.h"

namespace ferrin {

using namespace Qt::StringLiterals;

void TroubleLog::report(const QString &trouble, const QString &detail)
{
    constexpr qsizetype longestDetail = 200;
    if (!m_reported.insert(trouble).second)
        return;
    const QString text = detail.left(longestDetail).simplified();
    const QString line = text.isEmpty() ? trouble : trouble + u": "_s + text;
    qCCritical(logger, "%ls", qUtf16Printable(line));
}

} // namespace ferrin
