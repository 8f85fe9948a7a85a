// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/fuzz/lines.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t greatest);

namespace ferrin::fuzz {

namespace {

using Random = std::minstd_rand;

std::size_t below(Random &random, std::size_t count)
{
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
}

std::string anyOf(Random &random, std::span<const std::string_view> words)
{
    return std::string(words[below(random, words.size())]);
}

std::string placeOf(const std::string &line)
{
    return line.substr(0, line.find('/') + 1);
}

std::string newLine(Random &random, const std::vector<std::string> &lines)
{
    const bool isKnownPlace = !lines.empty() && below(random, 4) != 0;
    const std::string place = isKnownPlace ? placeOf(lines[below(random, lines.size())])
                                           : anyOf(random, knownWords.places);
    return place + anyOf(random, knownWords.keys) + '=' + anyOf(random, knownWords.values);
}

std::string changedBytes(std::string value)
{
    constexpr std::size_t longest = 256;
    std::string buffer = value.substr(0, longest);
    buffer.resize(longest);
    const std::size_t size = LLVMFuzzerMutate(reinterpret_cast<std::uint8_t *>(buffer.data()),
                                              std::min(value.size(), longest), longest);
    buffer.resize(size);
    std::replace(buffer.begin(), buffer.end(), '\n', ' ');
    return buffer;
}

void changeValue(Random &random, std::string &line)
{
    const auto [key, value] = keyAndValue(line);
    const std::string before(value);
    std::string after;
    switch (below(random, 4)) {
    case 0:
        after = changedBytes(before);
        break;
    case 1:
        after = '-' + before;
        break;
    case 2:
        after = before + '0';
        break;
    default:
        after = anyOf(random, knownWords.values);
    }
    line = std::string(key) + '=' + after;
}

void changeOnce(Random &random, std::vector<std::string> &lines)
{
    const std::size_t place = below(random, lines.size() + 1);
    const auto there = lines.begin() + std::ptrdiff_t(place);
    const std::size_t kind = place == lines.size() ? 0 : below(random, 6);
    if (kind == 0)
        lines.insert(there, newLine(random, lines));
    else if (kind == 1)
        lines.erase(there);
    else if (kind == 2)
        lines.insert(there, std::string(lines[below(random, lines.size())]));
    else
        changeValue(random, *there);
}

} // namespace

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::pair<std::string_view, std::string_view> keyAndValue(std::string_view line)
{
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos)
        return { line, {} };
    return { line.substr(0, sign), line.substr(sign + 1) };
}

} // namespace ferrin::fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t greatest, unsigned seed)
{
    using namespace ferrin::fuzz;
    Random random(seed);
    const auto views = linesOf({ reinterpret_cast<const char *>(data), size });
    std::vector<std::string> lines(views.begin(), views.end());
    for (std::size_t left = 1 + below(random, 4); left > 0; --left)
        changeOnce(random, lines);
    std::string text;
    for (const std::string &line : lines)
        text += line + '\n';
    const std::size_t kept = std::min(text.size(), greatest);
    std::memcpy(data, text.data(), kept);
    return kept;
}
