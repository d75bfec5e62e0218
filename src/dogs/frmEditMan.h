#pragma once
// The editor of one owner.

#include "forms/form.h"

#include <array>

class QLineEdit;

namespace lorvo {

/// Edits the owner `Module().CurrentOwner`. The surname is no part of it and keeps its value.
class frmEditMan : public Form {
    Q_OBJECT
  public:
    explicit frmEditMan(QWidget* parent);

  protected:
    void Load() override;

  private:
    void Store();

    static constexpr int kBoxes = 7;
    std::array<QLineEdit*, kBoxes> txtItem{};
    int ownerID_ = 0;
};

} // namespace lorvo
