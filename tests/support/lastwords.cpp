// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/lastwords.h"

#include <QByteArray>

#include <array>
#include <sys/wait.h>
#include <unistd.h>

namespace ferrin::test {

namespace {

constexpr int saidLastWords = 77;
int mouth = -1;

void speak(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtFatalMsg)
        return;
    const QByteArray words = text.toUtf8();
    const bool said
        = write(mouth, words.constData(), static_cast<std::size_t>(words.size())) == words.size();
    // Not abort(): an expected end should not dump core.
    _exit(said ? saidLastWords : 1);
}

QByteArray listen(int ear)
{
    QByteArray heard;
    std::array<char, 256> buffer {};
    for (ssize_t count = 0; (count = read(ear, buffer.data(), buffer.size())) > 0;)
        heard.append(buffer.data(), count);
    return heard;
}

} // namespace

std::optional<QString> lastWords(const std::function<void()> &deed)
{
    std::array<int, 2> ends {};
    if (pipe(ends.data()) != 0)
        return std::nullopt;
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        mouth = ends[1];
        qInstallMessageHandler(speak);
        deed();
        _exit(0);
    }
    close(ends[1]);
    const QByteArray words = listen(ends[0]);
    close(ends[0]);
    int status = 0;
    const bool ended = waitpid(child, &status, 0) == child && WIFEXITED(status);
    if (!ended || WEXITSTATUS(status) != saidLastWords)
        return std::nullopt;
    return QString::fromUtf8(words);
}

} // namespace ferrin::test
