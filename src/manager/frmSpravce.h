#pragma once
// The window of the data's own program: copies, entries in, lists out, people's data, the check.

#include "forms/form.h"

class QTabWidget;

namespace lorvo {

struct Platform;

class frmSpravce : public Form {
    Q_OBJECT
  public:
    /// Works on the show of the platform's folder; the platform outlives the window.
    explicit frmSpravce(Platform& platform, QWidget* parent = nullptr);

    QTabWidget* tabSpravce;
};

} // namespace lorvo
