#include "platform/docx/document_body.h"

#include "platform/docx/docx_package.h"
#include "platform/file_failure.h"

#include <QDir>

namespace lorvo::docx {

using namespace Qt::StringLiterals;

namespace {

QString FileName() {
    return QDir::temp().filePath(u"Lorvo-XXXXXX.xml"_s);
}

} // namespace

DocumentBody::DocumentBody() : file_(FileName()), xml_(Opened(file_)) {
    xml_.Start("w:document").Attribute("xmlns:w", kMainNamespace).Start("w:body");
}

QTemporaryFile& DocumentBody::Opened(QTemporaryFile& file) {
    if (!file.open())
        FailToWriteFile(FileName(), CauseOfFailure(file));
    return file;
}

void DocumentBody::Finish(const std::function<void(const QByteArray&)>& use) {
    xml_.End().End().Finish();
    if (!file_.flush())
        FailToWriteFile(FileName(), CauseOfFailure(file_));
    const qint64 size = file_.size();
    const uchar* bytes = file_.map(0, size);
    if (!bytes)
        FailToWriteFile(FileName(), CauseOfFailure(file_));
    use(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), size));
}

} // namespace lorvo::docx
