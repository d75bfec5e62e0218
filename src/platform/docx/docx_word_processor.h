#pragma once
// The real word processors: each composes an Office Open XML document while it is typed, and hands
// the file to the desktop's word processor at the end.

#include "platform/open_service.h"
#include "platform/word_processor.h"

#include <QDir>

namespace lorvo {

/// A document is typed from its start to its end: once the insertion point has gone to the start,
/// only formats of the whole text and showing follow, until it goes back to the end. Typing
/// elsewhere raises PlatformError.
class DocxWordProcessors : public WordProcessors {
  public:
    /// Documents go into fresh folders below `temporaryFolder`, where the desktop's program finds
    /// them after Lorvo has ended, too; clearing them away is the system's matter. The opener
    /// outlives the word processors.
    explicit DocxWordProcessors(OpenService& opener, QString temporaryFolder = QDir::tempPath());

    /// Raises PlatformError when the folder can't be made.
    std::unique_ptr<WordProcessor> Create() override;

  private:
    OpenService& opener_;
    QString temporaryFolder_;
};

} // namespace lorvo
