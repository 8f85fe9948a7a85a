// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/packageversion.h"

#include <algorithm>

namespace ferrin {

namespace {

/// The parts of "[epoch:]upstream[-revision]".
struct Parts
{
    explicit Parts(QStringView version)
    {
        const qsizetype colon = version.indexOf(u':');
        if (colon >= 0)
            epoch = version.first(colon);
        version = version.sliced(colon + 1);
        const qsizetype hyphen = version.lastIndexOf(u'-');
        upstream = hyphen < 0 ? version : version.first(hyphen);
        if (hyphen >= 0)
            revision = version.sliced(hyphen + 1);
    }

    QStringView epoch;
    QStringView upstream;
    QStringView revision;
};

// Not QChar's: a version is ASCII, and other scripts have digits too.
bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

/// Takes the leading characters of one kind off the text.
template <typename IsOfKind>
QStringView take(QStringView &text, IsOfKind isOfKind)
{
    const auto end = std::ranges::find_if_not(text, isOfKind);
    const QStringView taken = text.first(end - text.begin());
    text = text.sliced(taken.size());
    return taken;
}

/// Of any length: versions made of dates and commits outgrow every integer.
std::strong_ordering compareNumbers(QStringView left, QStringView right)
{
    const auto isZero = [](QChar character) { return character == u'0'; };
    take(left, isZero);
    take(right, isZero);
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right) <=> 0;
}

/// A tilde comes before the end of the version, and that before letters, and those before the rest.
int debianRank(QStringView text, qsizetype index)
{
    if (index >= text.size())
        return 0;
    const QChar character = text[index];
    if (character == u'~')
        return -1;
    constexpr int beyondLetters = 0x10000;
    return character.unicode() + (isLetter(character) ? 0 : beyondLetters);
}

std::strong_ordering compareDebianWords(QStringView left, QStringView right)
{
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
        if (const auto order = debianRank(left, i) <=> debianRank(right, i); std::is_neq(order))
            return order;
    }
    return std::strong_ordering::equal;
}

// https://www.debian.org/doc/debian-policy/ch-controlfields.html#version
std::strong_ordering compareDebian(QStringView left, QStringView right)
{
    const auto isWord = [](QChar character) { return !isDigit(character); };
    while (!left.isEmpty() || !right.isEmpty()) {
        if (const auto order = compareDebianWords(take(left, isWord), take(right, isWord));
            std::is_neq(order))
            return order;
        if (const auto order = compareNumbers(take(left, isDigit), take(right, isDigit));
            std::is_neq(order))
            return order;
    }
    return std::strong_ordering::equal;
}

/// "~" comes before the end of the version and "^" just after it; absent for what stands in no
/// special place.
int rpmRank(QStringView text)
{
    if (text.isEmpty())
        return 1;
    if (text.front() == u'~')
        return 0;
    return text.front() == u'^' ? 2 : 3;
}

std::strong_ordering compareRpmSegments(QStringView &left, QStringView &right)
{
    if (isDigit(left.front()) != isDigit(right.front()))
        return isDigit(left.front()) <=> isDigit(right.front());
    if (isDigit(left.front()))
        return compareNumbers(take(left, isDigit), take(right, isDigit));
    return take(left, isLetter).compare(take(right, isLetter)) <=> 0;
}

// https://rpm-software-management.github.io/rpm/manual/dependencies.html#versioning
std::strong_ordering compareRpm(QStringView left, QStringView right)
{
    const auto isSeparator = [](QChar character) {
        return !isDigit(character) && !isLetter(character) && character != u'~'
            && character != u'^';
    };
    constexpr int plain = 3;
    while (true) {
        take(left, isSeparator);
        take(right, isSeparator);
        if (const auto order = rpmRank(left) <=> rpmRank(right); std::is_neq(order))
            return order;
        if (left.isEmpty())
            return std::strong_ordering::equal;
        if (rpmRank(left) != plain) {
            left = left.sliced(1);
            right = right.sliced(1);
        } else if (const auto order = compareRpmSegments(left, right); std::is_neq(order)) {
            return order;
        }
    }
}

template <typename Compare>
std::strong_ordering compareParts(const Parts &left, const Parts &right, Compare compare)
{
    if (const auto order = compareNumbers(left.epoch, right.epoch); std::is_neq(order))
        return order;
    if (const auto order = compare(left.upstream, right.upstream); std::is_neq(order))
        return order;
    return compare(left.revision, right.revision);
}

} // namespace

std::partial_ordering compareVersions(const QString &left, const QString &right, VersionOrder order)
{
    const std::strong_ordering debian = compareParts(Parts(left), Parts(right), &compareDebian);
    const std::strong_ordering rpm = compareParts(Parts(left), Parts(right), &compareRpm);
    switch (order) {
    case VersionOrder::debian:
        return debian;
    case VersionOrder::rpm:
        return rpm;
    case VersionOrder::unknown:
        break;
    }
    return debian == rpm ? std::partial_ordering(debian) : std::partial_ordering::unordered;
}

QString upstreamVersion(const QString &version)
{
    return Parts(version).upstream.toString();
}

} // namespace ferrin
