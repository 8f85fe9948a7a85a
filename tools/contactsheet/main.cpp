// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sheets.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

using namespace ferrin;
using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("usage: contact_sheet FOLDER [FONT FAMILY]\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QString family = argc > 2 ? QString::fromLocal8Bit(argv[2]) : u"DejaVu Sans"_s;

    const SheetTheme light = lightTheme(family);
    const SheetTheme dark = darkTheme(family);
    const bool saved = iconSheet(light).save(folder.filePath(u"icons-light.png"_s))
        && iconSheet(dark).save(folder.filePath(u"icons-dark.png"_s))
        && symbolSheet(light).save(folder.filePath(u"symbols-light.png"_s))
        && symbolSheet(dark).save(folder.filePath(u"symbols-dark.png"_s))
        && formSheet(light).save(folder.filePath(u"forms-light.png"_s))
        && formSheet(dark).save(folder.filePath(u"forms-dark.png"_s));
    if (!saved)
        std::fputs("contact_sheet: the pictures could not be saved\n", stderr);
    return saved ? 0 : 1;
}
