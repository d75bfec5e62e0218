#pragma once
// The real word processors: each composes an Office Open XML document while it is typed, and hands
// the file to the desktop's word processor at the end.

#include "platform/clock.h"
#include "platform/open_service.h"
#include "platform/word_processor.h"

namespace lorvo {

/// A document is typed from its start to its end: once the insertion point has gone to the start,
/// only formats of the whole text and showing follow, until it goes back to the end. Typing
/// elsewhere raises PlatformError.
class DocxWordProcessors : public WordProcessors {
  public:
    /// Documents go into `folder`, which is made when it is missing, named by title and time, never
    /// over an older one. Opener and clock outlive the word processors.
    DocxWordProcessors(OpenService& opener, const Clock& clock, QString folder);

    std::unique_ptr<WordProcessor> Create(const QString& title) override;

  private:
    OpenService& opener_;
    const Clock& clock_;
    QString folder_;
};

} // namespace lorvo
