// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QList>
#include <QMetaMethod>

namespace ferrin::test {

/// The signals that the class itself declares, in their order.
template <typename T>
[[nodiscard]] QList<QMetaMethod> changeSignalsOf()
{
    QList<QMetaMethod> changes;
    const QMetaObject &meta = T::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            changes.append(meta.method(i));
    }
    return changes;
}

} // namespace ferrin::test
