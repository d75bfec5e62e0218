#pragma once
// The container of a document: a zip file with the parts that word processors expect.

#include "platform/docx/docx_styles.h"

#include <QString>
#include <string_view>

namespace lorvo::docx {

/// Namespace of the elements with the prefix "w".
inline constexpr std::string_view kMainNamespace =
    "http://schemas.openxmlformats.org/wordprocessingml/2006/main";

/// How the document looks when it is opened.
struct ViewSettings {
    bool printView = false;
    bool wholePage = false;
};

/// Packs the file `body`, which is the part with the text, and all other parts into a new file
/// `path`. The same input gives the same bytes: entries have a fixed order and a fixed time.
/// Raises PlatformError that names the file.
void PackDocument(const QString& path, const QString& body, const Styles& styles,
                  const ViewSettings& view);

} // namespace lorvo::docx
