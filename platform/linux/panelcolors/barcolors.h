// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QColor>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <optional>

class QJsonObject;

namespace ferrin {

/// The colour of text on the bar that sway or i3 draws, by the window manager's own
/// answer over its socket. Follows the bar's configuration. Never blocks; absent where there is no
/// such window manager.
class BarColors : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~BarColors() override;

    /// Asks the window manager behind the socket at the path, in place of the one before. Where
    /// there is none, nothing is known any more.
    void start(const QString &socketPath);

    [[nodiscard]] const std::optional<QColor> &text() const noexcept { return m_text; }

Q_SIGNALS:
    void changed();

private:
    void send(quint32 type, const QByteArray &payload);
    void receive();
    void take(quint32 type, const QByteArray &payload);
    void takeBar(const QJsonObject &bar);
    void setText(const std::optional<QColor> &text);
    void close();

    /// -1 for none.
    int m_socket = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QByteArray m_received;
    /// The bar that is followed: the first that the window manager names.
    QString m_bar;
    std::optional<QColor> m_text;
};

/// What reads on a bar of such a configuration; absent when it names no colours.
[[nodiscard]] std::optional<QColor> textOfBar(const QJsonObject &bar);

} // namespace ferrin
