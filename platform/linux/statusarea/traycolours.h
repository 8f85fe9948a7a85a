// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/statusarea/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QObject>

#include <optional>
#include <span>

namespace ferrin {

/// The colour of text on the panel, as the owner of the X11 tray selection announces it. Most
/// panels own that selection too and announce their own theme's colours. Silent where the program
/// does not run on X11 or nobody owns the tray.
class TrayColours : public QObject, QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit TrayColours(QObject *parent = nullptr);
    ~TrayColours() override;

    /// Looks who owns the tray now. A change by the same owner is noticed without.
    void refresh();

    [[nodiscard]] const std::optional<QColor> &text() const noexcept { return m_text; }

Q_SIGNALS:
    void changed();

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void follow(quint32 owner);
    void read();

    X11Connection m_x11;
    quint32 m_selectionAtom = 0;
    quint32 m_coloursAtom = 0;
    /// The tray's owner, 0 for none.
    quint32 m_owner = 0;
    std::optional<QColor> m_text;
};

/// The first of the announced colours, the text's: red, green and blue of 16 bits each. Absent when
/// the property does not hold the four colours.
[[nodiscard]] std::optional<QColor> textAmongTrayColours(std::span<const quint32> announced);

} // namespace ferrin
