// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/attributetext.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <charconv>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r') || character == '\0';
}

constexpr std::array placeholders {
    "primary"_L1,
    "secondary"_L1,
    "standard"_L1,
    "default"_L1,
    "generic"_L1,
    "battery"_L1,
    "bat"_L1,
    "bat0"_L1,
    "bat1"_L1,
    "notebook"_L1,
    "oem"_L1,
    "unknown"_L1,
    "n/a"_L1,
    "na"_L1,
    "none"_L1,
    "null"_L1,
    "not available"_L1,
    "not specified"_L1,
    "to be filled by o.e.m."_L1,
};

bool isPlaceholder(const QString &text)
{
    if (text.startsWith(u'<') && text.endsWith(u'>'))
        return true;
    if (text.size() == 1 || std::none_of(text.begin(), text.end(), [](QChar character) {
            return character.isLetterOrNumber();
        }))
        return true;
    return std::any_of(placeholders.begin(), placeholders.end(), [&text](QLatin1StringView word) {
        return text.compare(word, Qt::CaseInsensitive) == 0;
    });
}

// Some packs append bytes of other fields to their name; the text before them is the name.
QString readablePart(std::string_view text)
{
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString decoded
        = decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    QString readable;
    for (const QChar character : decoded) {
        if (character == QChar::ReplacementCharacter || character.isNull())
            break;
        if (character.isPrint() || character.isSurrogate())
            readable.append(character);
    }
    return readable.simplified();
}

} // namespace

std::string_view trimmed(std::string_view text) noexcept
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<qint64> numberOf(std::string_view text) noexcept
{
    qint64 number = 0;
    const char *end = text.data() + text.size();
    const auto [position, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || error != std::errc() || position != end)
        return std::nullopt;
    return number;
}

std::optional<qint64> numberWithUnit(std::string_view text, std::string_view unit) noexcept
{
    if (!text.ends_with(unit))
        return std::nullopt;
    text.remove_suffix(unit.size());
    return numberOf(trimmed(text));
}

std::string_view chosenWord(std::string_view text) noexcept
{
    const std::size_t open = text.find('[');
    const std::size_t close = text.find(']', open == std::string_view::npos ? 0 : open);
    if (open == std::string_view::npos || close == std::string_view::npos)
        return {};
    return text.substr(open + 1, close - open - 1);
}

QString nameOf(std::string_view text)
{
    const QString name = readablePart(text);
    return isPlaceholder(name) ? QString() : name;
}

QString serialOf(std::string_view text)
{
    const QString serial = readablePart(text);
    const bool onlyZeros
        = std::all_of(serial.begin(), serial.end(), [](QChar digit) { return digit == u'0'; });
    return onlyZeros || isPlaceholder(serial) ? QString() : serial;
}

} // namespace ferrin
