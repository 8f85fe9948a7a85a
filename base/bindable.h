// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QProperty>

#include <functional>
#include <utility>

namespace ferrin {

/// What others may do with a property of an object's: read it, in a binding as well, and be told
/// when it changes, but not set it. As QBindable, but free of Qt's private ABI: QBindable calls a
/// constructor that Qt exports as private, which ties the binary to the version that it was built
/// with. Refers to the property, which outlives it.
template <typename T>
class Bindable
{
public:
    template <typename Property>
    Bindable(const Property *property)
        : m_property(property)
        , m_read([](const void *source) -> T {
            return static_cast<const Property *>(source)->value();
        })
        , m_follow([](const void *source, std::function<void()> notify) {
            return QPropertyNotifier(*static_cast<const Property *>(source), std::move(notify));
        })
    {
    }

    [[nodiscard]] T value() const { return m_read(m_property); }

    /// Calls the function after each change, for as long as the result is kept.
    [[nodiscard]] QPropertyNotifier addNotifier(std::function<void()> notify) const
    {
        return m_follow(m_property, std::move(notify));
    }

private:
    const void *m_property;
    T (*m_read)(const void *);
    QPropertyNotifier (*m_follow)(const void *, std::function<void()>);
};

} // namespace ferrin
