// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/menubuttons.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ferrin {

/// `ButtonState` for QML, whose enumerators must begin with a capital letter.
class ButtonStates : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ButtonState)
    QML_UNCREATABLE("An enumeration.")

public:
    enum State {
        Selected = int(ButtonState::selected),
        Hovered = int(ButtonState::hovered),
        None = int(ButtonState::none),
    };
    Q_ENUM(State)

    ButtonStates() = delete;
};

} // namespace ferrin
