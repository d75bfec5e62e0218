#pragma once
// The award titles.

#include "setup/code_list.h"

namespace lorvo {

class frmOceneni : public CodeListForm {
    Q_OBJECT
  public:
    explicit frmOceneni(QWidget* parent);
};

} // namespace lorvo
