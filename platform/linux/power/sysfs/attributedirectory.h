// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace ferrin {

/// A directory of kernel attributes, which stays open while it is read. An attribute that cannot be
/// read for any reason (it is missing or disappears, it is a directory or a pipe, reading fails, it
/// is longer than a page) is absent; nothing else is affected. Files are opened without blocking.
class AttributeDirectory
{
public:
    /// A page, the greatest size of an attribute:
    /// https://www.kernel.org/doc/html/latest/filesystems/sysfs.html
    using Buffer = std::array<char, 4096>;

    explicit AttributeDirectory(const char *path);
    ~AttributeDirectory();
    AttributeDirectory(AttributeDirectory &&other) noexcept;
    AttributeDirectory &operator=(AttributeDirectory &&other) = delete;
    AttributeDirectory(const AttributeDirectory &) = delete;
    AttributeDirectory &operator=(const AttributeDirectory &) = delete;

    [[nodiscard]] bool exists() const noexcept { return m_descriptor >= 0; }

    /// A subdirectory; one that does not exist has no attributes.
    [[nodiscard]] AttributeDirectory child(const char *path) const;

    /// The names of all entries that are not hidden, sorted, since the kernel's order is undefined.
    [[nodiscard]] std::vector<std::string> entries() const;

    /// The attribute's bytes without surrounding white space; empty when it is absent. They point
    /// into the buffer and need not be valid text.
    [[nodiscard]] std::string_view read(const char *path, Buffer &buffer) const;

private:
    explicit AttributeDirectory(int descriptor) noexcept
        : m_descriptor(descriptor)
    {
    }

    int m_descriptor = -1;
};

} // namespace ferrin
