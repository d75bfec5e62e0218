#pragma once
// The page of a document: its one section.

#include "platform/docx/twips.h"

#include <vector>

namespace lorvo::docx {

class XmlWriter;

class Page {
  public:
    /// Turning the page swaps its sides.
    void SetOrientation(PageOrientation orientation);
    void SetSize(Twips width, Twips height);
    /// The first column, which was there from the start, gives up the room for the new one. The
    /// columns keep their widths when margins change later.
    void AddTextColumn(Twips width, Twips spacing);

    Twips top = TwipsFromCentimeters(2.5);
    Twips bottom = TwipsFromCentimeters(2.5);
    Twips left = TwipsFromCentimeters(2.5);
    Twips right = TwipsFromCentimeters(2.5);
    Twips gutter = 0;
    Twips header = TwipsFromCentimeters(1.25);
    Twips footer = TwipsFromCentimeters(1.25);

    /// Room for text between the margins.
    Twips TextWidth() const { return width_ - left - right - gutter; }
    Twips TextHeight() const { return height_ - top - bottom; }

    /// The section's properties, the last child of the document's body.
    void Write(XmlWriter& xml) const;

  private:
    struct Column {
        Twips width;
        Twips spacingAfter;
    };
    void WriteColumns(XmlWriter& xml) const;

    PageOrientation orientation_ = PageOrientation::Portrait;
    Twips width_ = TwipsFromCentimeters(21.0);
    Twips height_ = TwipsFromCentimeters(29.7);
    std::vector<Column> columns_; ///< empty while there is but the initial one
};

} // namespace lorvo::docx
