// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace ferrin {

/// A directory of kernel attributes, held open while it is read. Everything that can go wrong with
/// one attribute (it is missing, it vanishes, it is a directory or a pipe, reading it fails with
/// any error, it is longer than a page) makes that attribute absent and nothing else. No call waits
/// for another process: files are opened without blocking.
class AttributeDirectory
{
public:
    /// A page: the kernel gives an attribute no more.
    using Buffer = std::array<char, 4096>;

    explicit AttributeDirectory(const char *path);
    ~AttributeDirectory();
    AttributeDirectory(AttributeDirectory &&other) noexcept;
    AttributeDirectory &operator=(AttributeDirectory &&other) = delete;
    AttributeDirectory(const AttributeDirectory &) = delete;
    AttributeDirectory &operator=(const AttributeDirectory &) = delete;

    [[nodiscard]] bool exists() const noexcept { return m_descriptor >= 0; }

    /// The directory at a path relative to this one; one that does not exist has no attributes.
    [[nodiscard]] AttributeDirectory child(const char *path) const;

    /// The names in it without the hidden ones, sorted, so that no answer depends on their order.
    [[nodiscard]] std::vector<std::string> entries() const;

    /// The attribute's bytes without white space around them; empty when it is absent. They live in
    /// the buffer and may be no text at all.
    [[nodiscard]] std::string_view read(const char *path, Buffer &buffer) const;

private:
    explicit AttributeDirectory(int descriptor) noexcept
        : m_descriptor(descriptor)
    {
    }

    int m_descriptor = -1;
};

} // namespace ferrin
