#pragma once
// The names of the ordinary classes, for the present run alone.

#include "forms/form.h"

namespace lorvo {

class ReportList;

class fm_classes : public Form {
    Q_OBJECT
  public:
    explicit fm_classes(QWidget* parent);

  protected:
    void Load() override;

  private:
    void Rename(int position, const QString& text, bool* cancel);

    ReportList* lvwClasses;
};

} // namespace lorvo
