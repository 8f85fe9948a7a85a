// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "settingswindow/support/vendor.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ferrin {

class LinkOpener;

/// The settings window's links to the outside: the page of frequently asked questions and the mail
/// to the support, the latter empty when there is no address. A child of the engine.
class Links final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString faq READ faq CONSTANT)
    Q_PROPERTY(QString supportMail READ supportMail CONSTANT)

public:
    /// The opener outlives this.
    Links(LinkOpener &opener, Vendor vendor, QObject *parent = nullptr);

    /// The engine's child.
    static Links *create(QQmlEngine *engine, QJSEngine *);

    [[nodiscard]] QString faq() const;
    [[nodiscard]] QString supportMail() const;

    /// Text that is not a valid link is ignored.
    /// False if nothing on this desktop shows the link.
    Q_INVOKABLE bool open(const QString &link);

private:
    LinkOpener &m_opener;
    Vendor m_vendor;
};

} // namespace ferrin
