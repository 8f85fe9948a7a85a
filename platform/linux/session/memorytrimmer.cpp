// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/memorytrimmer.h"

#include <functional>
#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace ferrin {

namespace {

using Visit = std::function<void(const dl_phdr_info &)>;

void visitLibraries(const Visit &visit)
{
    dl_iterate_phdr(
        [](dl_phdr_info *info, size_t, void *data) {
            (*static_cast<const Visit *>(data))(*info);
            return 0;
        },
        const_cast<Visit *>(&visit));
}

/// The pages of a library that are as they are in its file.
void dropUnchangedPages(const dl_phdr_info &library)
{
    const auto page = quintptr(sysconf(_SC_PAGESIZE));
    for (int i = 0; i < library.dlpi_phnum; ++i) {
        const ElfW(Phdr) &segment = library.dlpi_phdr[i];
        if (segment.p_type != PT_LOAD || (segment.p_flags & PF_W))
            continue;
        const quintptr begin = (library.dlpi_addr + segment.p_vaddr) & ~(page - 1);
        const quintptr end = library.dlpi_addr + segment.p_vaddr + segment.p_memsz;
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the loader reports addresses as numbers
        madvise(reinterpret_cast<void *>(begin), end - begin, MADV_DONTNEED);
    }
}

} // namespace

MemoryTrimmer::MemoryTrimmer(QObject *parent)
    : QObject(parent)
{
    using namespace std::chrono_literals;
    m_delay.setSingleShot(true);
    m_delay.setInterval(2s);
    connect(&m_delay, &QTimer::timeout, this, &MemoryTrimmer::trim);
}

void MemoryTrimmer::rememberLibraries()
{
    visitLibraries([this](const dl_phdr_info &library) { m_libraries.insert(library.dlpi_addr); });
}

void MemoryTrimmer::trimSoon()
{
    m_delay.start();
}

void MemoryTrimmer::cancel()
{
    m_delay.stop();
}

void MemoryTrimmer::trim()
{
    visitLibraries([this](const dl_phdr_info &library) {
        if (!m_libraries.contains(library.dlpi_addr))
            dropUnchangedPages(library);
    });
#ifdef __GLIBC__
    // Others give back what is free by themselves.
    malloc_trim(0);
#endif
}

} // namespace ferrin
