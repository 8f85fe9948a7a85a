// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// What a window manager sends over its socket, in pieces of any size. The first byte is the size.

#include "platform/linux/panelcolors/barcolors.h"
#include "tests/fuzz/fuzzing.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace ferrin::fuzz {

namespace {

/// A window manager of which one knows only its socket.
class Manager
{
public:
    Manager()
    {
        const QByteArray name = QFile::encodeName(m_path);
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, name.constData(),
                    std::min(sizeof address.sun_path - 1, size_t(name.size())));
        require(::bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address)
                        == 0
                    && ::listen(m_listener, 1) == 0,
                "there is a socket");
    }

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] int accept() const { return ::accept(m_listener, nullptr, nullptr); }

private:
    QString m_path = newFolder() + QStringLiteral("/ipc");
    int m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

void send(int client, const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return;
    const std::size_t piece = std::max<std::size_t>(*data, 1);
    for (std::size_t sent = 1; sent < size; sent += piece) {
        if (::send(client, data + sent, std::min(piece, size - sent), MSG_NOSIGNAL) < 0)
            return;
        QCoreApplication::processEvents();
    }
}

} // namespace

} // namespace ferrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ferrin::fuzz;
    static const Manager manager;
    ferrin::BarColors colors;
    colors.start(manager.path());
    const int client = manager.accept();
    require(client >= 0, "it connects");
    send(client, data, size);
    ::close(client);
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
    require(!colors.text() || colors.text()->isValid(), "a colour is one, or absent");
    return 0;
}
