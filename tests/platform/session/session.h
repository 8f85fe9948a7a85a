// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace ferrin::test {

/// A session as it logs in: it reads an autostart entry by the letter of the format and by no code
/// of ours, and starts what the entry says.
class Session
{
public:
    /// The command line of the entry's Exec; empty when the session would start nothing.
    [[nodiscard]] static QStringList commandLine(const QString &entry)
    {
        QFile file(entry);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QByteArray exec;
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line == "Hidden=true")
                return {};
            if (line.startsWith("Exec="))
                exec = line.mid(5);
        }
        return split(unescaped(exec));
    }

    /// Starts the entry's program and waits for its end; false when there was nothing to start.
    [[nodiscard]] static bool logIn(const QString &entry)
    {
        QStringList words = commandLine(entry);
        if (words.isEmpty())
            return false;
        QProcess process;
        process.start(words.takeFirst(), words);
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit
            && process.exitCode() == 0;
    }

private:
    /// The escapes of a value of type string.
    [[nodiscard]] static QByteArray unescaped(const QByteArray &value)
    {
        static const QByteArray codes = "sntr\\";
        static const QByteArray meanings = " \n\t\r\\";
        QByteArray text;
        for (qsizetype i = 0; i < value.size(); ++i) {
            const bool isEscape = value[i] == '\\';
            text += isEscape ? meanings[codes.indexOf(value[++i])] : value[i];
        }
        return text;
    }

    /// Words apart, quoted ones without their quotes, "%%" as one percent sign.
    [[nodiscard]] static QStringList split(const QByteArray &exec)
    {
        QList<QByteArray> words;
        bool isQuoted = false;
        bool isInWord = false;
        for (qsizetype i = 0; i < exec.size(); ++i) {
            const char character = exec[i];
            if (!isQuoted && (character == ' ' || character == '\t' || character == '\n')) {
                isInWord = false;
                continue;
            }
            if (!isInWord)
                words.append(QByteArray());
            isInWord = true;
            if (character == '"')
                isQuoted = !isQuoted;
            else if ((isQuoted && character == '\\') || character == '%')
                words.last() += exec[++i];
            else
                words.last() += character;
        }
        QStringList texts;
        for (const QByteArray &word : words)
            texts.append(QString::fromUtf8(word));
        return texts;
    }
};

} // namespace ferrin::test
