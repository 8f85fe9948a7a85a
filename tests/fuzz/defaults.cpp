// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// The file of the settings, whatever it holds: it is read, a value is written, and it is read
// again.

#include "state/bundle.h"
#include "state/filedefaultsstore.h"
#include "state/settingsdata.h"
#include "tests/fuzz/fuzzing.h"

#include <QDir>

#include <cmath>
#include <tuple>

namespace ferrin::fuzz {

namespace {

using namespace Qt::StringLiterals;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void changeAndReadAgain(const QString &path)
{
    const QJsonObject before = DefaultsFile(path).read().entries;
    {
        FileDefaultsStore store(path);
        store.setObject(u"added"_s, 7);
    }
    const DefaultsFile::Contents after = DefaultsFile(path).read();
    require(after.state == DefaultsFile::State::Whole, "the file is whole after a write");
    require(after.entries.value(u"added"_s) == 7, "what was written is there");
    for (auto entry = before.begin(); entry != before.end(); ++entry)
        require(entry.key() == u"added"_s || after.entries.value(entry.key()) == entry.value(),
                "what could be read is kept");
}

} // namespace

} // namespace ferrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ferrin::fuzz;
    const QByteArray content = bytesOf(data, size);
    const QString folder = newFolder();
    const QString path = folder + u"/defaults.json"_s;
    write(path, content);
    const bool isDamaged
        = ferrin::DefaultsFile(path).read().state == ferrin::DefaultsFile::State::Damaged;
    changeAndReadAgain(path);
    require(!isDamaged || contentOf(path + u".damaged-1"_s) == content,
            "a damaged file is set aside as it was");
    {
        ferrin::FileDefaultsStore store(path);
        ferrin::SettingsData settings(store, ferrin::Bundle::main());
        std::ignore = settings.dischargingIconSelected();
        require(std::isfinite(settings.statusItemWidth()), "the width is a number");
    }
    QDir(folder).removeRecursively();
    return 0;
}
