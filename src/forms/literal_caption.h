#pragma once
// Captions made of data.

#include <QString>

namespace lorvo {

/// The text as a caption: an ampersand in it is no mark of an access key.
inline QString LiteralCaption(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace lorvo
