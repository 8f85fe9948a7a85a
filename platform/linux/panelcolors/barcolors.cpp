// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/barcolors.h"

#include "menubar/contrast.h"
#include "platform/linux/panelcolors/colortext.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

constexpr QByteArrayView magic("i3-ipc");
constexpr quint32 subscribe = 2;
constexpr quint32 getBarConfig = 6;
constexpr quint32 barConfigUpdate = 0x80000004;
// The magic, then the payload's length and its type, in the machine's own byte order.
constexpr qsizetype headerSize = 6 + 2 * sizeof(quint32);
// A configuration is a few kilobytes; more is no window manager.
constexpr quint32 largestPayload = 1 << 20;

int connectedSocket(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || size_t(name.size()) >= sizeof address.sun_path)
        return -1;
    std::memcpy(address.sun_path, name.constData(), size_t(name.size()));
    const int made = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (made < 0)
        return -1;
    if (::connect(made, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0)
        return made;
    ::close(made);
    return -1;
}

} // namespace

std::optional<QColor> textOfBar(const QJsonObject &bar)
{
    const QJsonObject colors = bar.value("colors"_L1).toObject();
    std::optional<QColor> text = colorIn(colors.value("statusline"_L1).toString());
    if (text)
        text->setAlpha(255);
    return readableText(text, colorIn(colors.value("background"_L1).toString()));
}

BarColors::~BarColors()
{
    close();
}

void BarColors::start(const QString &socketPath)
{
    close();
    m_socket = connectedSocket(socketPath);
    if (m_socket < 0) {
        setText({});
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &BarColors::receive);
    send(subscribe, R"(["barconfig_update"])");
    send(getBarConfig, {});
}

void BarColors::send(quint32 type, const QByteArray &payload)
{
    const auto length = quint32(payload.size());
    QByteArray message = magic.toByteArray();
    message.append(reinterpret_cast<const char *>(&length), sizeof length);
    message.append(reinterpret_cast<const char *>(&type), sizeof type);
    message.append(payload);
    // So little always fits into an empty socket.
    if (::send(m_socket, message.constData(), size_t(message.size()), MSG_NOSIGNAL)
        != message.size())
        close();
}

void BarColors::receive()
{
    std::array<char, 4096> part {};
    const ssize_t count = ::read(m_socket, part.data(), part.size());
    if (count <= 0) {
        close();
        return;
    }
    m_received.append(part.data(), count);
    while (m_received.size() >= headerSize) {
        quint32 length = 0;
        quint32 type = 0;
        std::memcpy(&length, m_received.constData() + magic.size(), sizeof length);
        std::memcpy(&type, m_received.constData() + magic.size() + sizeof length, sizeof type);
        if (!m_received.startsWith(magic) || length > largestPayload) {
            close();
            return;
        }
        if (m_received.size() < headerSize + qsizetype(length))
            return;
        const QByteArray payload = m_received.mid(headerSize, length);
        m_received.remove(0, headerSize + qsizetype(length));
        take(type, payload);
    }
}

void BarColors::take(quint32 type, const QByteArray &payload)
{
    const QJsonDocument document = QJsonDocument::fromJson(payload);
    if (type == getBarConfig && document.isArray() && m_bar.isEmpty()) {
        m_bar = document.array().at(0).toString();
        if (!m_bar.isEmpty())
            send(getBarConfig, m_bar.toUtf8());
    } else if (document.isObject() && (type == getBarConfig || type == barConfigUpdate)) {
        takeBar(document.object());
    }
}

void BarColors::takeBar(const QJsonObject &bar)
{
    if (m_bar.isEmpty() || bar.value("id"_L1).toString() != m_bar)
        return;
    setText(textOfBar(bar));
}

void BarColors::setText(const std::optional<QColor> &text)
{
    if (std::exchange(m_text, text) != text)
        Q_EMIT changed();
}

void BarColors::close()
{
    // By its own hand it may be in the middle of telling.
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater();
    }
    if (m_socket >= 0)
        ::close(m_socket);
    m_socket = -1;
    m_received.clear();
    m_bar.clear();
}

} // namespace ferrin
