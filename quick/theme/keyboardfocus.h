// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ferrin {

/// Whether the focus is worth showing: the last that the user did in one of our windows was done
/// with a key, not with the pointer. A window that has just
/// opened begins without.
class KeyboardFocus final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY isVisibleChanged)

public:
    explicit KeyboardFocus(QObject *parent = nullptr);

    [[nodiscard]] bool isVisible() const noexcept { return m_isVisible; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void isVisibleChanged();

private:
    void setVisible(bool visible);

    bool m_isVisible = false;
};

} // namespace ferrin
