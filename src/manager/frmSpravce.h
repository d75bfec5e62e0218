#pragma once
// The window of the data's own program: copies, entries in, lists out, people's data, the check.

#include "forms/form.h"

class QTabWidget;

namespace lorvo {

class frmSpravce : public Form {
    Q_OBJECT
  public:
    explicit frmSpravce(QWidget* parent = nullptr);

    QTabWidget* tabSpravce;
};

} // namespace lorvo
