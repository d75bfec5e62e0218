#pragma once
// Copies of a template's row pattern, filled from rows of any kind by a table of placeholders.

#include "office/papers/template_engine.h"
#include "platform/values/cp1250.h"

#include <functional>
#include <utility>

namespace lorvo {

/// A placeholder and its value of a row; one without a value stays in the text.
template<class Row> struct RowField {
    QByteArray placeholder;
    std::function<std::optional<QByteArray>(const Row&)> value;
};

/// A value that is a text of the row.
template<class Row, class Text> RowField<Row> TextField(QByteArray placeholder, Text text) {
    return {std::move(placeholder), [text](const Row& row) {
                return ToCp1250(text(row));
            }};
}

/// A value that is the same in every row.
template<class Row> RowField<Row> FixedField(QByteArray placeholder, const QString& text) {
    return {std::move(placeholder), [bytes = ToCp1250(text)](const Row&) {
                return bytes;
            }};
}

template<class Row> class RowFiller {
  public:
    /// `fields` in the order of replacement.
    RowFiller(QByteArray pattern, std::vector<RowField<Row>> fields)
        : fields_(std::move(fields)), values_(fields_.size()),
          pattern_(std::move(pattern), Placeholders(fields_)) {}

    /// Appends the copy for this row to `output`.
    void AppendTo(QByteArray& output, const Row& row) {
        for (std::size_t i = 0; i < fields_.size(); ++i)
            values_[i] = fields_[i].value(row);
        pattern_.AppendTo(output, values_);
    }

  private:
    static std::vector<QByteArray> Placeholders(const std::vector<RowField<Row>>& fields) {
        std::vector<QByteArray> placeholders;
        for (const RowField<Row>& field : fields)
            placeholders.push_back(field.placeholder);
        return placeholders;
    }

    std::vector<RowField<Row>> fields_;
    std::vector<std::optional<QByteArray>> values_;
    RowPattern pattern_;
};

} // namespace lorvo
