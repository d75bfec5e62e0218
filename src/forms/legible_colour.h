#pragma once
// Colours that can be read on their ground.

#include <QColor>

namespace lorvo {

/// What text needs on its ground.
inline constexpr double kLegibleContrast = 4.5;
/// What the outlines of boxes and ticks need.
inline constexpr double kOutlineContrast = 3;

/// How far two colours stand apart for the eye, from 1 to 21.
double Contrast(const QColor& one, const QColor& other);

/// The ink, made darker or lighter as little as lets text of it (or what needs another contrast) be
/// read on the ground; the ink itself where it can be.
QColor LegibleOn(const QColor& ground, const QColor& ink, double contrast = kLegibleContrast);

} // namespace lorvo
