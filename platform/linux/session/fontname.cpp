// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/fontname.h"

#include <QRegularExpression>

namespace ferrin {

using namespace Qt::StringLiterals;

QString familyOfPangoName(const QString &name)
{
    static const QRegularExpression size(u"\\s+[0-9.]+(px)?$"_s);
    static const QRegularExpression style(u"\\s(normal|regular|book|roman|oblique|italic|small-"
                                          u"caps|medium|(semi-|demi-|ultra-|extra-)?"
                                          "(light|bold|condensed|expanded)|thin|black|heavy)$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    QString family = name.trimmed();
    family.remove(size);
    // A comma ends the list of families, so that a family may look like a style.
    if (const qsizetype comma = family.indexOf(u','); comma >= 0)
        return family.first(comma).trimmed();
    for (QString shorter = family; !shorter.remove(style).isEmpty() && shorter != family;)
        family = shorter;
    return family;
}

QString familyOfQtName(const QString &name)
{
    return name.section(u',', 0, 0).trimmed();
}

} // namespace ferrin
