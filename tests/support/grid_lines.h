#pragma once
// Whether a list shows grid lines, by what it paints.

#include "forms/report_list.h"

#include <QImage>

namespace lorvo::test {

/// Gives the list a row and looks below its cells.
inline bool ShowsGridLines(ReportList& list) {
    const int position = list.AddRow({});
    const QRect row = list.visualRect(list.model()->index(position, 0));
    const QColor painted =
        list.viewport()->grab().toImage().pixelColor(row.center().x(), row.bottom());
    list.RemoveRowAt(position);
    return painted.rgb() == list.palette().color(QPalette::Midlight).rgb();
}

} // namespace lorvo::test
