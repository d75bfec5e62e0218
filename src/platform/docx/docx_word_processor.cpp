#include "platform/docx/docx_word_processor.h"

#include "platform/docx/docx_composer.h"

#include <utility>

namespace lorvo {

DocxWordProcessors::DocxWordProcessors(OpenService& opener, const Clock& clock, QString folder)
    : opener_(opener), clock_(clock), folder_(std::move(folder)) {}

std::unique_ptr<WordProcessor> DocxWordProcessors::Create(const QString& title) {
    return std::make_unique<docx::Composer>(opener_, clock_, folder_, title);
}

} // namespace lorvo
