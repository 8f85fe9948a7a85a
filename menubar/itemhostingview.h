// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

#include <QObject>
#include <QProperty>
#include <QSizeF>

#include <utility>

namespace ferrin {

/// Holds the item's content view inside a status item's button, and is what the platform looks at:
/// `content` is one expression over the snapshot, the settings and the switches, which emits a
/// signal when what is shown has changed. Made anew at every MenuBarItemProvider::update(); owned
/// by the button.
class ItemHostingView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ferrin::ItemContent content READ content NOTIFY contentChanged)

public:
    using QObject::QObject;

    [[nodiscard]] ItemContent content() const { return m_content; }
    void setContent(const ItemContent &content) { m_content = content; }
    /// Shows what the expression comes to, now and whenever a property that it read has changed.
    template <typename Expression>
    void bindContent(Expression &&expression)
    {
        m_content.setBinding(std::forward<Expression>(expression));
    }

    /// Logical pixels, as last set.
    [[nodiscard]] QSizeF frameSize() const noexcept { return m_frameSize; }
    void setFrameSize(const QSizeF &size) { m_frameSize = size; }

Q_SIGNALS:
    void contentChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY(ItemHostingView, ItemContent, m_content,
                               &ItemHostingView::contentChanged)
    QSizeF m_frameSize;
};

} // namespace ferrin
