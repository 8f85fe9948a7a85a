// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/barcolors.h"
#include "tests/support/testmain.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 subscription = 2;
constexpr quint32 barConfig = 6;
constexpr quint32 barConfigUpdate = 0x80000004;

QByteArray bar(const char *id, const char *ground, const char *text)
{
    return QByteArray(R"({"id":")") + id + R"(","colors":{"background":")" + ground
        + R"(","statusline":")" + text + R"("}})";
}

QByteArray message(quint32 type, const QByteArray &payload)
{
    const auto length = quint32(payload.size());
    QByteArray result("i3-ipc");
    result.append(reinterpret_cast<const char *>(&length), sizeof length);
    result.append(reinterpret_cast<const char *>(&type), sizeof type);
    return result + payload;
}

std::optional<QColor> textOf(const QByteArray &json)
{
    return textOfBar(QJsonDocument::fromJson(json).object());
}

/// A window manager's socket with one client.
class FakeWindowManager
{
public:
    FakeWindowManager()
        : m_listening(::socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        const QByteArray name = path().toUtf8();
        std::memcpy(address.sun_path, name.constData(), size_t(name.size()));
        ::bind(m_listening, reinterpret_cast<const sockaddr *>(&address), sizeof address);
        ::listen(m_listening, 1);
    }

    ~FakeWindowManager()
    {
        leave();
        ::close(m_listening);
    }

    [[nodiscard]] QString path() const { return m_folder.filePath(u"socket"_s); }

    void accept() { m_client = ::accept(m_listening, nullptr, nullptr); }

    /// What the client has sent that has not been read yet.
    [[nodiscard]] QByteArray heard() const
    {
        std::array<char, 4096> part {};
        const ssize_t count = ::recv(m_client, part.data(), part.size(), MSG_DONTWAIT);
        return { part.data(), qsizetype(std::max<ssize_t>(0, count)) };
    }

    void say(const QByteArray &words) const
    {
        QCOMPARE(::write(m_client, words.constData(), size_t(words.size())), words.size());
    }

    void leave()
    {
        if (m_client >= 0)
            ::close(std::exchange(m_client, -1));
    }

private:
    QTemporaryDir m_folder;
    int m_listening;
    int m_client = -1;
};

} // namespace

class BarColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheColorOfTheStatusLine()
    {
        QCOMPARE(textOf(bar("b", "#222222", "#dddddd")), QColor(0xdd, 0xdd, 0xdd));
        QCOMPARE(textOf(bar("b", "#f2f2f2ff", "#202020e0")), QColor(0x20, 0x20, 0x20));
    }

    void insistsOnAContrast()
    {
        QCOMPARE(textOf(bar("b", "#222222", "#333333")), QColor(Qt::white));
        QCOMPARE(textOf(bar("b", "#eeeeee", "#dddddd")), QColor(Qt::black));
        QCOMPARE(textOf(R"({"id":"b","colors":{"background":"#eeeeee"}})"), QColor(Qt::black));
    }

    void knowsNothingWithoutColors()
    {
        QVERIFY(!textOf("{}"));
        QVERIFY(!textOf(R"({"colors":{"background":7,"statusline":"bright"}})"));
    }

    void asksForTheFirstBarAndFollowsIt()
    {
        FakeWindowManager manager;
        BarColors colors;
        QSignalSpy changes(&colors, &BarColors::changed);
        colors.start(manager.path());
        manager.accept();
        QCOMPARE(manager.heard(),
                 message(subscription, R"(["barconfig_update"])") + message(barConfig, {}));
        manager.say(message(subscription, R"({"success":true})")
                    + message(barConfig, R"(["bar-0","bar-1"])"));
        QByteArray heard;
        QTRY_VERIFY((heard += manager.heard()) == message(barConfig, "bar-0"));
        const QByteArray answer = message(barConfig, bar("bar-0", "#000000", "#dddddd"));
        manager.say(answer.first(30));
        QTest::qWait(0);
        QVERIFY(!colors.text());
        manager.say(answer.sliced(30));
        QTRY_COMPARE(colors.text(), std::optional(QColor(0xdd, 0xdd, 0xdd)));

        manager.say(message(barConfigUpdate, bar("bar-1", "#ffffff", "#000000"))
                    + message(barConfigUpdate, bar("bar-0", "#ffffff", "#111111")));
        QTRY_COMPARE(colors.text(), std::optional(QColor(0x11, 0x11, 0x11)));
        QCOMPARE(changes.size(), 2);
    }

    void keepsWhatItKnowsWhenTheWindowManagerLeaves()
    {
        FakeWindowManager manager;
        BarColors colors;
        colors.start(manager.path());
        manager.accept();
        manager.say(message(barConfig, R"(["b"])")
                    + message(barConfig, bar("b", "#000000", "#dddddd")));
        QTRY_VERIFY(colors.text());
        manager.leave();
        QTest::qWait(10);
        QCOMPARE(colors.text(), std::optional(QColor(0xdd, 0xdd, 0xdd)));
    }

    void followsTheOneThatIsStartedNext()
    {
        FakeWindowManager before;
        FakeWindowManager after;
        BarColors colors;
        for (FakeWindowManager *manager : { &before, &after }) {
            const char *const text = manager == &before ? "#dddddd" : "#eeeeee";
            colors.start(manager->path());
            manager->accept();
            manager->say(message(barConfig, R"(["b"])")
                         + message(barConfig, bar("b", "#000000", text)));
            QTRY_COMPARE(colors.text(), std::optional(QColor(text)));
        }
        colors.start({});
        QVERIFY(!colors.text());
    }

    void survivesNonsense_data()
    {
        QTest::addColumn<QByteArray>("words");
        QTest::addRow("no message") << QByteArray("HTTP/1.1 400 Bad Request\r\n\r\n");
        QTest::addRow("too long") << message(barConfig, {}).replace(6, 4, "\xff\xff\xff\x7f");
        QTest::addRow("no json") << message(barConfig, "bar");
        QTest::addRow("no bars") << message(barConfig, "[]");
        QTest::addRow("numbers") << message(barConfig, "[1,2]");
        QTest::addRow("an unasked bar") << message(barConfig, bar("", "#000000", "#dddddd"));
    }

    void survivesNonsense()
    {
        QFETCH(QByteArray, words);
        FakeWindowManager manager;
        BarColors colors;
        colors.start(manager.path());
        manager.accept();
        manager.say(words);
        QTest::qWait(10);
        QVERIFY(!colors.text());
    }

    void isSilentWithoutAWindowManager()
    {
        BarColors colors;
        colors.start({});
        colors.start(u"/nonexistent/socket"_s);
        QVERIFY(!colors.text());
    }
};

FERRIN_TEST(QGuiApplication, BarColorsTest)
#include "test_barcolors.moc"
