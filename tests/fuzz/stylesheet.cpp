// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// A panel's style sheet, of either dialect, whatever it holds.

#include "platform/linux/panelcolors/stylesheet.h"

#include "tests/fuzz/fuzzing.h"

#include <QDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ferrin::fuzz;
    static const QString folder = newFolder();
    const QString path = folder + QStringLiteral("/style.css");
    write(path, bytesOf(data, size));
    const ferrin::StyleSheet sheet = ferrin::StyleSheet::read(path);
    require(!sheet.files().isEmpty(), "the sheet itself is read");
    for (const QString &selector : { QStringLiteral("*"), QStringLiteral("window#waybar"),
                                     QStringLiteral("#tray"), QStringLiteral("a") }) {
        for (const auto &color : { sheet.color(selector, QStringLiteral("color")),
                                   sheet.ground(selector), sheet.firstColor({ selector }) })
            require(!color || color->isValid(), "a colour is one, or absent");
    }
    return 0;
}
