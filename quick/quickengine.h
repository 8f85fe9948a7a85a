// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QQmlEngine>

/// Has the C++ types of a QML module linked in; `name` is its URI with underscores.
#define FERRIN_USE_QML_TYPES(name)                                                                 \
    extern void qml_register_types_##name();                                                       \
    [[maybe_unused]] static const volatile auto typesOf_##name = &qml_register_types_##name;

/// Has the compiled files of a QML module linked in; `target` is its room's.
#define FERRIN_USE_QML_FILES(target)                                                               \
    extern int qInitResources_qmlcache_##target();                                                 \
    [[maybe_unused]] static const int filesOf_##target = qInitResources_qmlcache_##target();

namespace ferrin {

class PopoverDesktop;

/// The engine of both windows, made before either: it also decides that they are painted in
/// software. It knows our QML modules and no other place on the disk than Qt's
/// own. What a singleton needs is found among its children: whoever makes the engine puts it there.
class QuickEngine final : public QQmlEngine
{
    Q_OBJECT

public:
    explicit QuickEngine(QObject *parent = nullptr);
    /// Popovers are dressed by this desktop, which outlives the engine.
    explicit QuickEngine(PopoverDesktop &popovers, QObject *parent = nullptr);

    [[nodiscard]] PopoverDesktop &popovers() const noexcept { return m_popovers; }

private:
    PopoverDesktop &m_popovers;
};

/// The engine's child of this type, which the engine does not own; for a singleton's `create`. Its
/// absence is a programming error and stops the process.
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
