// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownwindows/accessiblewindow.h"

#include <QAccessibleObject>
#include <QGuiApplication>
#include <QWindow>

#include <map>

namespace ferrin {

namespace {

class Part final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    Part(QWindow *window, QAccessibleInterface *root, int index, AccessibleWindow::Parts parts)
        : m_window(window)
        , m_root(root)
        , m_index(index)
        , m_parts(std::move(parts))
    {
    }

    [[nodiscard]] bool isValid() const override
    {
        return m_window && size_t(m_index) < m_parts().size();
    }
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *parent() const override { return m_root; }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override { }
    [[nodiscard]] QWindow *window() const override { return m_window; }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? part().name : QString();
    }
    [[nodiscard]] QRect rect() const override
    {
        return m_window ? part().bounds.translated(m_window->position()) : QRect();
    }
    [[nodiscard]] QAccessible::Role role() const override { return part().role; }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = true;
        state.focused = part().isFocused;
        state.invisible = !m_window || !m_window->isVisible();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
            ? static_cast<QAccessibleActionInterface *>(this)
            : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override { return { pressAction() }; }
    void doAction(const QString &name) override
    {
        const AccessiblePart now = part();
        if (name == pressAction() && now.press)
            now.press();
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] AccessiblePart part() const
    {
        return isValid() ? m_parts().at(size_t(m_index)) : AccessiblePart {};
    }

    QPointer<QWindow> m_window;
    QAccessibleInterface *m_root;
    int m_index;
    AccessibleWindow::Parts m_parts;
};

class Root final : public QAccessibleObject
{
public:
    Root(QWindow &window, QAccessible::Role role, AccessibleWindow::Parts parts)
        : QAccessibleObject(&window)
        , m_role(role)
        , m_parts(std::move(parts))
    {
    }

    ~Root() override
    {
        for (const auto &[index, id] : m_ids)
            QAccessible::deleteAccessibleInterface(id);
    }

    [[nodiscard]] QWindow *window() const override { return static_cast<QWindow *>(object()); }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(qApp);
    }
    [[nodiscard]] int childCount() const override { return int(m_parts().size()); }
    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        auto id = m_ids.find(index);
        if (id == m_ids.end()) {
            auto *part = new Part(window(), const_cast<Root *>(this), index, m_parts);
            id = m_ids.emplace(index, QAccessible::registerAccessibleInterface(part)).first;
        }
        return QAccessible::accessibleInterface(id->second);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (const auto &[index, id] : m_ids) {
            if (QAccessible::accessibleInterface(id) == child)
                return index;
        }
        return -1;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? window()->title() : QString();
    }
    [[nodiscard]] QRect rect() const override { return window()->geometry(); }
    [[nodiscard]] QAccessible::Role role() const override { return m_role; }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !window()->isVisible();
        return state;
    }

private:
    QAccessible::Role m_role;
    AccessibleWindow::Parts m_parts;
    mutable std::map<int, QAccessible::Id> m_ids;
};

} // namespace

AccessibleWindow::AccessibleWindow(QWindow &window, QAccessible::Role role, Parts parts)
    : m_root(QAccessible::registerAccessibleInterface(new Root(window, role, std::move(parts))))
{
}

AccessibleWindow::~AccessibleWindow()
{
    QAccessible::deleteAccessibleInterface(m_root);
}

QAccessibleInterface *AccessibleWindow::root() const
{
    return QAccessible::accessibleInterface(m_root);
}

void AccessibleWindow::nameChanged(int part) const
{
    notify(part, QAccessible::NameChanged);
}

void AccessibleWindow::focused(int part) const
{
    notify(part, QAccessible::Focus);
}

void AccessibleWindow::notify(int part, QAccessible::Event event) const
{
    QAccessibleInterface *const child
        = QAccessible::isActive() && root() ? root()->child(part) : nullptr;
    if (!child)
        return;
    QAccessibleEvent update(child, event);
    QAccessible::updateAccessibility(&update);
}

} // namespace ferrin
