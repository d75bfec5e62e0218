#pragma once
// Lengths of a document. Everything that is stored is a whole number of twentieths of a point.

#include "platform/word_processor.h"

#include <QtMath>

namespace lorvo::docx {

/// A length in twentieths of a point.
using Twips = int;

inline Twips TwipsFromPoints(double points) {
    return qRound(points * 20.0);
}
inline Twips TwipsFromCentimeters(double centimetres) {
    return TwipsFromPoints(CentimetersToPoints(centimetres));
}

/// Distance of the tab stops behind those that a paragraph has of its own.
inline const Twips kDefaultTabStop = TwipsFromCentimeters(1.25);

} // namespace lorvo::docx
