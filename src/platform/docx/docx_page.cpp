#include "platform/docx/docx_page.h"

#include "platform/docx/xml_writer.h"

#include <algorithm>
#include <utility>

namespace lorvo::docx {

namespace {

/// The narrowest column that word processors accept, half an inch.
constexpr Twips kNarrowestColumn = 720;

} // namespace

void Page::SetOrientation(PageOrientation orientation) {
    if (orientation != orientation_)
        std::swap(width_, height_);
    orientation_ = orientation;
}

void Page::SetSize(Twips width, Twips height) {
    width_ = width;
    height_ = height;
}

void Page::AddTextColumn(Twips width, Twips spacing) {
    if (columns_.empty())
        columns_.push_back({TextWidth(), 0});
    columns_.front().width = std::max(columns_.front().width - width - spacing, kNarrowestColumn);
    columns_.back().spacingAfter = spacing;
    columns_.push_back({width, 0});
}

void Page::Write(XmlWriter& xml) const {
    xml.Start("w:sectPr");
    xml.Empty("w:type", "w:val", "nextPage");
    xml.Start("w:pgSz").Attribute("w:w", width_).Attribute("w:h", height_);
    if (orientation_ == PageOrientation::Landscape)
        xml.Attribute("w:orient", "landscape");
    xml.End();
    xml.Start("w:pgMar").Attribute("w:top", top).Attribute("w:right", right);
    xml.Attribute("w:bottom", bottom).Attribute("w:left", left);
    xml.Attribute("w:header", header).Attribute("w:footer", footer);
    xml.Attribute("w:gutter", gutter).End();
    if (!columns_.empty())
        WriteColumns(xml);
    xml.End();
}

void Page::WriteColumns(XmlWriter& xml) const {
    xml.Start("w:cols").Attribute("w:num", static_cast<int>(columns_.size()));
    xml.Attribute("w:space", columns_.front().spacingAfter).Attribute("w:equalWidth", 0);
    for (const Column& column : columns_) {
        xml.Start("w:col").Attribute("w:w", column.width);
        if (column.spacingAfter > 0)
            xml.Attribute("w:space", column.spacingAfter);
        xml.End();
    }
    xml.End();
}

} // namespace lorvo::docx
