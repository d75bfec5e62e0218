#pragma once
// Clears the tables of an event, with a choice of what stays for the next one.

#include "forms/form.h"

#include <array>

class QCheckBox;

namespace lorvo {

class frmCisteniDB : public Form {
    Q_OBJECT
  public:
    explicit frmCisteniDB(QWidget* parent);

  private:
    bool IsSure() const;
    void Clear();
    void ClearTables();

    static constexpr int kTables = 9;
    std::array<QCheckBox*, kTables> chkTable{};
};

} // namespace lorvo
