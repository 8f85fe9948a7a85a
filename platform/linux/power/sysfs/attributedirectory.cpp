// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/attributedirectory.h"

#include "platform/linux/power/sysfs/attributetext.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace ferrin {

namespace {

constexpr int directoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK;
// O_NONBLOCK: opening a pipe in place of an attribute must not block.
constexpr int attributeFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

ssize_t readOnce(int descriptor, AttributeDirectory::Buffer &buffer)
{
    ssize_t size = -1;
    do {
        size = ::read(descriptor, buffer.data(), buffer.size());
    } while (size < 0 && errno == EINTR);
    return size;
}

} // namespace

AttributeDirectory::AttributeDirectory(const char *path)
    : m_descriptor(::open(path, directoryFlags))
{
}

AttributeDirectory::~AttributeDirectory()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

AttributeDirectory::AttributeDirectory(AttributeDirectory &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{
}

AttributeDirectory AttributeDirectory::child(const char *path) const
{
    return AttributeDirectory(exists() ? ::openat(m_descriptor, path, directoryFlags) : -1);
}

std::vector<std::string> AttributeDirectory::entries() const
{
    std::vector<std::string> names;
    if (!exists() || ::lseek(m_descriptor, 0, SEEK_SET) < 0)
        return names;
    alignas(dirent64) std::array<char, 8192> records;
    for (;;) {
        const ssize_t size = ::getdents64(m_descriptor, records.data(), records.size());
        if (size <= 0)
            break;
        for (ssize_t offset = 0; offset < size;) {
            const auto *entry = reinterpret_cast<const dirent64 *>(records.data() + offset);
            if (entry->d_name[0] != '.')
                names.emplace_back(entry->d_name);
            offset += entry->d_reclen;
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string_view AttributeDirectory::read(const char *path, Buffer &buffer) const
{
    if (!exists())
        return {};
    const int descriptor = ::openat(m_descriptor, path, attributeFlags);
    if (descriptor < 0)
        return {};
    const ssize_t size = readOnce(descriptor, buffer);
    ::close(descriptor);
    // A full buffer may be truncated.
    if (size <= 0 || static_cast<std::size_t>(size) >= buffer.size())
        return {};
    return trimmed({ buffer.data(), static_cast<std::size_t>(size) });
}

} // namespace ferrin
