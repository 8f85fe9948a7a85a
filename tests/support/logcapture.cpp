// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/logcapture.h"

#include <QTest>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {

LogCapture *current = nullptr;

QString levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return u"debug"_s;
    case QtInfoMsg:
        return u"info"_s;
    case QtWarningMsg:
        return u"warning"_s;
    case QtCriticalMsg:
        return u"error"_s;
    case QtFatalMsg:
        return u"fatal"_s;
    }
    return {};
}

} // namespace

LogCapture::LogCapture()
{
    Q_ASSERT(!current);
    current = this;
    m_previous = qInstallMessageHandler(handle);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
    current = nullptr;
    if (!m_ignoreRest && !m_lines.isEmpty()) {
        const QByteArray lines = m_lines.join(u'\n').toUtf8();
        QTest::qFail(QByteArray("Log lines that no test expected:\n" + lines).constData(), __FILE__,
                     __LINE__);
    }
}

QStringList LogCapture::take()
{
    return std::exchange(m_lines, {});
}

qsizetype LogCapture::takeCount(const QString &text)
{
    return take().filter(text).size();
}

void LogCapture::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (qstrcmp(context.category, "stats") == 0 || type == QtWarningMsg || type == QtCriticalMsg)
        current->m_lines.append(levelOf(type) + u": "_s + text);
    else
        current->m_previous(type, context, text);
}

} // namespace ferrin::test
