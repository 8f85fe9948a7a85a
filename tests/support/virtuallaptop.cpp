// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/virtuallaptop.h"

#include <QTest>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace ferrin::test {

namespace {

/// One line, quoted for a shell.
QByteArray lineOf(const QStringList &command)
{
    QByteArrayList words;
    for (const QString &word : command) {
        QByteArray quoted = word.simplified().toUtf8();
        quoted.replace("'", "'\\''");
        words.append('\'' + quoted + '\'');
    }
    return words.join(' ') + '\n';
}

QByteArray answerTo(const QByteArray &line)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    const QByteArray path = qgetenv("VIRTUAL_LAPTOP").left(sizeof(address.sun_path) - 1);
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QByteArray answer;
    if (::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0
        && ::write(descriptor, line.constData(), static_cast<std::size_t>(line.size()))
            == line.size()) {
        char letter = 0;
        while (::read(descriptor, &letter, 1) == 1 && letter != '\n')
            answer.append(letter);
    }
    ::close(descriptor);
    return answer;
}

} // namespace

void tellLaptop(const QStringList &command)
{
    const QByteArray answer = answerTo(lineOf(command));
    if (!answer.startsWith("ok"))
        QTest::qFail(("The virtual laptop says: " + answer).constData(), __FILE__, __LINE__);
}

} // namespace ferrin::test
