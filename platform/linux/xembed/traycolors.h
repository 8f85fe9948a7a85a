// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/x11/x11connection.h"

#include <QColor>
#include <QObject>

#include <optional>
#include <span>

namespace ferrin {

class TrayOwner;

/// The colour of text on the panel, as the owner of the X11 tray announces it. Most panels own the
/// tray too and announce their own theme's colours. Absent where there is no owner.
class TrayColors : public QObject
{
    Q_OBJECT

public:
    /// The owner outlives it.
    explicit TrayColors(const TrayOwner &owner, QObject *parent = nullptr);

    [[nodiscard]] const std::optional<QColor> &text() const noexcept { return m_text; }

Q_SIGNALS:
    void changed();

private:
    void read();

    const TrayOwner &m_owner;
    X11Connection m_x11;
    quint32 m_colorsAtom = 0;
    std::optional<QColor> m_text;
};

/// The first of the announced colours, the text's: red, green and blue of 16 bits each. Absent when
/// the property does not hold the four colours.
[[nodiscard]] std::optional<QColor> textAmongTrayColors(std::span<const quint32> announced);

} // namespace ferrin
