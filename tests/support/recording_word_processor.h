#pragma once
// A word processor that writes down what it was asked, one line an operation.

#include "platform/word_processor.h"

#include <QStringList>
#include <functional>

namespace lorvo::test {

/// Layout is no content and is left out of the operations. The operations outlive the word
/// processors made; `show` is asked what becomes of a document with this title.
class RecordingWordProcessors final : public WordProcessors {
  public:
    using Show = std::function<ShownDocument(const QString& title)>;
    RecordingWordProcessors(QStringList& operations, Show show)
        : operations_(operations), show_(std::move(show)) {}
    std::unique_ptr<WordProcessor> Create(const QString& title) override;

  private:
    QStringList& operations_;
    Show show_;
};

} // namespace lorvo::test
