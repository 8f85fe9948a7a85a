// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/updates/releasenotes.h"

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

QString evenMarkdown(const QString &markdown)
{
    static const QRegularExpression headings(u"^#{1,3}(?=[ \\t])"_s,
                                             QRegularExpression::MultilineOption);
    static const QRegularExpression emphasis(u"(?<![\\w*_])_([^_\n]+)_(?![\\w_])"_s);
    // Of the levels of headings, the fourth is as large as the words.
    return QString(markdown).replace(headings, u"####"_s).replace(emphasis, u"*\\1*"_s);
}

} // namespace ferrin
