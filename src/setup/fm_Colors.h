#pragma once
// The coat colours.

#include "setup/code_list.h"

namespace lorvo {

class fm_Colors : public CodeListForm {
    Q_OBJECT
  public:
    explicit fm_Colors(QWidget* parent);
};

} // namespace lorvo
