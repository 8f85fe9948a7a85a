// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/releasenotes.h"

#include <QRegularExpression>

namespace ferrin {

using namespace Qt::StringLiterals;

QString harmlessMarkdown(const QString &markdown)
{
    static const QRegularExpression imageMarks(u"!+(?=\\[)"_s);
    static const QRegularExpression links(u"\\[([^\\[\\]]*)\\]\\([^()]*\\)"_s);

    QString harmless = markdown;
    harmless.replace(u'<', u"&lt;"_s);
    // A mark may stand before a link's words only once the link around them is gone, and a link
    // within a link is one only once the inner one is.
    QString before;
    do {
        before = harmless;
        harmless.remove(imageMarks);
        harmless.replace(links, u"\\1"_s);
    } while (harmless != before);
    return harmless;
}

} // namespace ferrin
