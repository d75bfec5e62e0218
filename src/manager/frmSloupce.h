#pragma once
// Which column of a table holds what, above its first lines.

#include "forms/form.h"
#include "office/exchange/entry_fields.h"

#include <array>

class QComboBox;

namespace lorvo {

class frmSloupce : public Form {
    Q_OBJECT
  public:
    /// `rows` with the headings first; they must outlive the window.
    frmSloupce(const std::vector<QStringList>& rows, const ColumnChoice& columns, QWidget* parent);

    /// What was chosen; nullopt when the window was left by Storno.
    const std::optional<ColumnChoice>& Result() const { return result_; }

    std::array<QComboBox*, kEntryFields> cmbField{};

  private:
    QWidget* FieldGrid(const QStringList& headings, const ColumnChoice& columns);
    QWidget* FirstLines(const std::vector<QStringList>& rows);
    void Accept();

    std::optional<ColumnChoice> result_;
};

} // namespace lorvo
