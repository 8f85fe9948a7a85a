// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/installation.h"

#include <QCoreApplication>
#include <QDir>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

QString besideTheProgram(const QString &path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../"_s + path);
}

} // namespace

QString privateFolder()
{
    return besideTheProgram(u"libexec/ferrin"_s);
}

Vendor vendor()
{
    const QString faq = QStringLiteral(FERRIN_FAQ_URL);
    const QString email = QStringLiteral(FERRIN_SUPPORT_EMAIL);
    return { .faq = faq.isEmpty()
                 ? QUrl::fromLocalFile(besideTheProgram(u"share/ferrin/faq/index.html"_s))
                 : QUrl(faq),
             .supportMail = email.isEmpty() ? QUrl() : QUrl(u"mailto:"_s + email) };
}

} // namespace ferrin
