#pragma once
// The container of a document: a zip file with the parts that word processors expect.

#include "platform/docx/docx_styles.h"

#include <QByteArray>
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

/// Packs the part with the text, which is `body`, and all other parts into the bytes of a file. The
/// same input gives the same bytes: entries have a fixed order and a fixed time. Raises
/// PlatformError when memory runs out.
QByteArray PackDocument(const QString& title, const QByteArray& body, const Styles& styles,
                        const ViewSettings& view);

} // namespace lorvo::docx
