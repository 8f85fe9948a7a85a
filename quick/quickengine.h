// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/heldkeys.h"

#include <QQmlEngine>

/// Links the C++ types of a QML module; `name` is its URI with underscores.
#define FERRIN_USE_QML_TYPES(name)                                                                 \
    extern void qml_register_types_##name();                                                       \
    [[maybe_unused]] static const volatile auto typesOf_##name = &qml_register_types_##name;

/// Links the compiled files of a QML module; `target` is its CMake target.
#define FERRIN_USE_QML_FILES(target)                                                               \
    extern int qInitResources_qmlcache_##target();                                                 \
    [[maybe_unused]] static const int filesOf_##target = qInitResources_qmlcache_##target();

namespace ferrin {

class PopoverDesktop;

/// The QML engine of all windows, made before any of them: it also decides that they are painted in
/// software and that a held key acts once. It imports our own modules and Qt's, nothing else. A
/// singleton's C++ object is found among its children, where the owner of the engine puts it.
class QuickEngine final : public QQmlEngine
{
    Q_OBJECT

public:
    explicit QuickEngine(QObject *parent = nullptr);
    /// The desktop prepares the popovers' windows; it outlives the engine.
    explicit QuickEngine(PopoverDesktop &popovers, QObject *parent = nullptr);

    [[nodiscard]] PopoverDesktop &popovers() const noexcept { return m_popovers; }

private:
    PopoverDesktop &m_popovers;
    HeldKeys m_heldKeys;
};

/// The engine's child of this type, for a singleton's `create`; QML does not take ownership of it.
/// Its absence is a programming error and stops the process.
template <typename T>
[[nodiscard]] T *engineChild(const QQmlEngine &engine)
{
    T *const child = engine.findChild<T *>(QString(), Qt::FindDirectChildrenOnly);
    if (!child)
        qFatal("The engine was not given its %s.", T::staticMetaObject.className());
    QJSEngine::setObjectOwnership(child, QJSEngine::CppOwnership);
    return child;
}

} // namespace ferrin
