#include "app/common_routines.h"
#include "platform/platform.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QString FullKey(const QString& key) {
    return u"Software\\Hollow Peak\\Lorvo\\"_s + key;
}

} // namespace

QString ReadRegValue(const QString& key, const QString& name) {
    return ThePlatform().settings->Read(FullKey(key), name);
}

void WriteRegValue(const QString& key, const QString& name, const QString& text) {
    ThePlatform().settings->Write(FullKey(key), name, text);
}

} // namespace lorvo
