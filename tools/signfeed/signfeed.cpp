// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Makes the key that releases are signed with, and signs the feed that tells of them. It is a
// program of those who make releases and is not installed.
//
//     signfeed --new-key FILE        makes a key that nobody else can read
//     signfeed --public-key FILE     tells the half that a build believes
//     signfeed --sign FILE < TEXT > FEED
//     signfeed --verify FILE < FEED > TEXT

#include "updates/network/feedsignature.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

using namespace ferrin;

namespace {

int complain(const char *what, const char *about)
{
    std::fprintf(stderr, "signfeed: %s: %s\n", about, what);
    return EXIT_FAILURE;
}

bool write(int file, const QByteArray &bytes)
{
    return ::write(file, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size();
}

int makeKey(const char *path)
{
    // Never over another key: what that one signed would be lost.
    const int file = open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return complain("cannot be made, or is there already", path);
    const bool isWritten = write(file, newSigningKey().secretKey.toBase64() + '\n')
        && fsync(file) == 0 && close(file) == 0;
    return isWritten ? EXIT_SUCCESS : complain("cannot be written", path);
}

std::optional<SigningKey> readKey(const char *path)
{
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return signingKeyFrom(QByteArray::fromBase64(file.readAll().trimmed()));
}

bool print(const QByteArray &bytes)
{
    QFile out;
    return out.open(stdout, QIODevice::WriteOnly) && out.write(bytes) == bytes.size()
        && out.flush();
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray command(argc == 3 ? argv[1] : "");
    if (command == "--new-key")
        return makeKey(argv[2]);
    if (command != "--public-key" && command != "--sign" && command != "--verify")
        return complain("--new-key, --public-key, --sign or --verify, and a file", "usage");

    const auto key = readKey(argv[2]);
    if (!key)
        return complain("is not a key", argv[2]);
    if (command == "--public-key")
        return print(key->publicKey.toBase64() + '\n') ? EXIT_SUCCESS : EXIT_FAILURE;
    QFile in;
    if (!in.open(stdin, QIODevice::ReadOnly))
        return complain("cannot be read", "the standard input");
    if (command == "--sign")
        return print(signedFeed(in.readAll(), *key)) ? EXIT_SUCCESS : EXIT_FAILURE;
    const auto text = signedText(in.readAll(), key->publicKey);
    if (!text)
        return complain("is not signed with this key", "the feed");
    return print(*text) ? EXIT_SUCCESS : EXIT_FAILURE;
}
