// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ferrin {

/// What the windows show to those who work by keyboard. Follows the keys and presses in all of the
/// application's windows.
class KeyboardFocus final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The focus is marked: the user last acted by a key, not by pointer. False in a window that
    /// has just opened.
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY isVisibleChanged)
    /// Buttons underline their mnemonics: Alt is held.
    Q_PROPERTY(bool showsMnemonics READ showsMnemonics NOTIFY showsMnemonicsChanged)

public:
    explicit KeyboardFocus(QObject *parent = nullptr);

    [[nodiscard]] bool isVisible() const noexcept { return m_isVisible; }
    [[nodiscard]] bool showsMnemonics() const noexcept { return m_showsMnemonics; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void isVisibleChanged();
    void showsMnemonicsChanged();

private:
    void setVisible(bool visible);
    void followAlt(const QEvent &event);
    void setShowsMnemonics(bool shows);

    bool m_isVisible = false;
    bool m_showsMnemonics = false;
};

} // namespace ferrin
