// Any bytes as the settings file: every value reads as some text, and what is written reads back.

#include "fuzz/fuzz_target.h"

#include "platform/real_services.h"

#include <QFile>
#include <QTemporaryDir>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/lorvo-fuzz-XXXXXX"));
    QFile file(folder.filePath(QStringLiteral("Lorvo.settings")));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) < 0)
        return 0;
    file.close();
    const auto settings = lorvo::MakeSettingsTree(folder.path());
    for (const auto* name : {"ShowGrid", "ShowClasses", "ExpandedItems"})
        settings->Read(QStringLiteral("Software\\Hollow Peak\\Lorvo\\Sys"),
                       QString::fromLatin1(name));
    settings->Read(QStringLiteral("Software\\Hollow Peak\\Lorvo\\Splitters\\fm_main"),
                   QStringLiteral("Left"));
    return 0;
}
