// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QAccessible>
#include <QPointer>
#include <QRect>
#include <QString>

#include <functional>
#include <vector>

class QWindow;

namespace ferrin {

/// One thing in a painted window that a screen reader can find and press.
struct AccessiblePart
{
    QAccessible::Role role = QAccessible::Button;
    QString name {};
    /// In the window's coordinates.
    QRect bounds {};
    bool isFocused = false;
    std::function<void()> press {};
};

/// What a painted window is to assistive technology: a role, a name and a few parts, asked for
/// afresh at every request. Owned by the window, as a member.
class AccessibleWindow
{
public:
    using Parts = std::function<std::vector<AccessiblePart>()>;

    AccessibleWindow(QWindow &window, QAccessible::Role role, Parts parts);
    ~AccessibleWindow();
    AccessibleWindow(const AccessibleWindow &) = delete;
    AccessibleWindow &operator=(const AccessibleWindow &) = delete;

    /// For QWindow::accessibleRoot().
    [[nodiscard]] QAccessibleInterface *root() const;

    /// The part's name has changed.
    void nameChanged(int part) const;
    /// The part has come into focus.
    void focused(int part) const;

private:
    void notify(int part, QAccessible::Event event) const;

    QAccessible::Id m_root;
};

} // namespace ferrin
