#pragma once
// The part of a document that holds its text, written while it is typed.

#include "platform/docx/xml_writer.h"

#include <QByteArray>
#include <QTemporaryFile>
#include <functional>

namespace lorvo::docx {

/// A catalogue's text is a hundred times its file, so it goes to a temporary file, which has no
/// name where the system allows that and leaves nothing behind.
class DocumentBody {
  public:
    /// Raises PlatformError that names the folder for temporary files when one can't be made there.
    DocumentBody();

    XmlWriter& Xml() { return xml_; }
    /// Ends the text; `use` gets its bytes, which live as long as the call.
    void Finish(const std::function<void(const QByteArray&)>& use);

  private:
    static QTemporaryFile& Opened(QTemporaryFile& file);

    QTemporaryFile file_;
    XmlWriter xml_;
};

} // namespace lorvo::docx
