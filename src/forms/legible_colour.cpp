#include "forms/legible_colour.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace lorvo {

namespace {

constexpr int kSteps = 64;

double Linear(double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

QColor Mixed(const QColor& from, const QColor& to, int step) {
    const auto part = [step](int a, int b) {
        return a + (b - a) * step / kSteps;
    };
    return {part(from.red(), to.red()), part(from.green(), to.green()),
            part(from.blue(), to.blue())};
}

QColor Reckon(const QColor& ground, const QColor& ink, double contrast) {
    const QColor black(Qt::black), white(Qt::white);
    const QColor& end = Contrast(ground, black) > Contrast(ground, white) ? black : white;
    for (int step = 0; step < kSteps; ++step)
        if (const QColor mixed = Mixed(ink, end, step); Contrast(ground, mixed) >= contrast)
            return mixed;
    return end;
}

} // namespace

double Contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor LegibleOn(const QColor& ground, const QColor& ink, double contrast) {
    // Lists paint few colours, and each of them in many cells.
    static thread_local std::map<std::tuple<quint64, quint64, double>, QColor> reckoned;
    QColor& legible = reckoned[{ground.rgba64(), ink.rgba64(), contrast}];
    if (!legible.isValid())
        legible = Reckon(ground, ink, contrast);
    return legible;
}

} // namespace lorvo
