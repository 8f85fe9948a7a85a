// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/installation.h"

#include <QCoreApplication>
#include <QDir>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

QString fromTheProgram(const QString &path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + path);
}

} // namespace

QString privateFolder()
{
    return fromTheProgram(QStringLiteral(FERRIN_LIBEXEC_FROM_BIN));
}

Vendor vendor()
{
    const QString faq = QStringLiteral(FERRIN_FAQ_URL);
    const QString email = QStringLiteral(FERRIN_SUPPORT_EMAIL);
    return { .faq = faq.isEmpty() ? QUrl::fromLocalFile(
                        fromTheProgram(QStringLiteral(FERRIN_DATA_FROM_BIN "/faq/index.html")))
                                  : QUrl(faq),
             .supportMail = email.isEmpty() ? QUrl() : QUrl(u"mailto:"_s + email) };
}

} // namespace ferrin
