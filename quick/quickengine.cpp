// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/quickengine.h"

FERRIN_USE_QML_MODULE(Ferrin_Quick, ferrin_quick)

namespace ferrin {

QuickEngine::QuickEngine(QObject *parent)
    : QQmlEngine(parent)
{
    addImportPath(QStringLiteral("qrc:/qt/qml"));
}

} // namespace ferrin
