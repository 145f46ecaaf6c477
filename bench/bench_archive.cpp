// SPDX-License-Identifier: MIT
// bench-archive make COUNT FILE: writes an archive of COUNT papers.
// bench-archive read FILE: decodes an archive and says how long that took and how far the memory rose.

#include "platform/foundation/archive/keyed_unarchiver.h"
#include "printer/papers/catalogue_archive.h"

#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace halvern;

namespace {

/// A value of /proc/self/status in KiB.
long statusKib(const char* name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const qsizetype start = text.indexOf(name);
    return start < 0 ? 0 : std::atol(text.constData() + start + qstrlen(name) + 1);
}

int make(int count, const char* path)
{
    QVariantMap catalogue;
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("Photo Paper %1").arg(i / 4);
        const qint64 resolution = 3000 + 3100 * (i % 4);
        catalogue.insert(QStringLiteral("%1-r%2").arg(name).arg(resolution / 10),
                         QVariantMap{{QStringLiteral("paperName"), name},
                                     {QStringLiteral("paperWidth"), qint64(1000 + i / 4 % 5000)},
                                     {QStringLiteral("paperSurface"), qint64(1 + i % 4)},
                                     {QStringLiteral("paperResolution"), resolution},
                                     {QStringLiteral("paperTone"), quint64(i % 256)}});
    }
    const QByteArray archive = archiveOfCatalogue(catalogue);
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::WriteOnly) && file.write(archive) == archive.size() ? 0 : 1;
}

int read(const char* path)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    const long before = statusKib("VmRSS:");
    const QByteArray archive = file.readAll();
    QElapsedTimer timer;
    timer.start();
    const std::clock_t cpu = std::clock();
    const KeyedUnarchiver::Result result = KeyedUnarchiver::unarchiveDictionary(archive);
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    const double cpuMilliseconds = double(std::clock() - cpu) * 1000.0 / CLOCKS_PER_SEC;
    std::printf("%-28s %9.1f KiB %9.1f ms (%.1f of CPU)  peak %6.1f MiB (file included)  %s\n", path,
                double(archive.size()) / 1024, milliseconds, cpuMilliseconds,
                double(statusKib("VmHWM:") - before) / 1024,
                result.root ? qPrintable(QStringLiteral("%1 papers").arg(result.root->size()))
                            : qPrintable(result.failure));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray command = argc > 1 ? argv[1] : "";
    if (command == "make" && argc == 4)
        return make(std::atoi(argv[2]), argv[3]);
    if (command == "read" && argc == 3)
        return read(argv[2]);
    std::fputs("usage: bench-archive make COUNT FILE | read FILE\n", stderr);
    return 2;
}
