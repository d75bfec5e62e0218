// Any bytes as the settings file: every value reads as some text, and what is written reads back.

#include "fuzz/fuzz_target.h"

#include "platform/real_services.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder(u"/dev/shm/lorvo-fuzz-XXXXXX"_s);
    QFile file(folder.filePath(u"Lorvo.settings"_s));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) < 0)
        return 0;
    file.close();
    const auto settings = lorvo::MakeSettingsTree(folder.path());
    for (const auto* name : {"ShowGrid", "ShowClasses", "ExpandedItems"})
        settings->Read(u"Software\\Hollow Peak\\Lorvo\\Sys"_s, QString::fromLatin1(name));
    settings->Read(u"Software\\Hollow Peak\\Lorvo\\Splitters\\fm_main"_s, u"Left"_s);
    return 0;
}
