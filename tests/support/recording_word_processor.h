#pragma once
// A word processor that writes down what it was asked, one line an operation.

#include "platform/word_processor.h"

#include <QStringList>

namespace lorvo::test {

/// Both lists outlive the word processors made.
class RecordingWordProcessors final : public WordProcessors {
  public:
    RecordingWordProcessors(QStringList& operations, int& shownDocuments)
        : operations_(operations), shownDocuments_(shownDocuments) {}
    std::unique_ptr<WordProcessor> Create() override;

  private:
    QStringList& operations_;
    int& shownDocuments_;
};

} // namespace lorvo::test
