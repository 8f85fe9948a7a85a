// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QStringList>

#include <functional>

namespace ferrin::test {

/// PackageKit's interface on a connection of the test's own. What a transaction does is the test's
/// to say; otherwise version 1.0-1 is installed by a package, 1.1-1 is offered, and all succeeds.
class FakePackageKit final : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// What a method of a transaction does. It may return before the transaction has ended.
    using Act = std::function<void(const QString &path)>;

    explicit FakePackageKit(const QDBusConnection &connection);

    void package(const QString &path, uint info, const QString &id);
    void change(const QString &path, const QVariantMap &properties);
    void fail(const QString &path, uint code, const QString &text);
    void finish(const QString &path, uint exit = 1);
    /// The service vanishes.
    void leave();

    QHash<QString, Act> acts;
    /// The methods that were called, in order.
    QStringList calls;
    QHash<QString, QVariantList> arguments;
    QString installed = QStringLiteral("ferrin;1.0-1;amd64;manual:ferrin-stable-main");
    QString offered = QStringLiteral("ferrin;1.1-1;amd64;ferrin-stable-main");
    QString changelog;
    /// The path of the last transaction.
    QString transaction;

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override;

private:
    void tell(const QString &path, const QString &member, const QVariantList &values);
    [[nodiscard]] Act actOf(const QString &method);
    [[nodiscard]] static QVariant property(const QString &name);

    QDBusConnection m_connection;
    int m_count = 0;
};

} // namespace ferrin::test
