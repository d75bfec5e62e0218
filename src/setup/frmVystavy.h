#pragma once
// The list of shows.

#include "forms/form.h"

namespace lorvo {

class CommandCollection;
class ReportList;

class frmVystavy : public Form {
    Q_OBJECT
  public:
    explicit frmVystavy(QWidget* parent);

  protected:
    void Load() override;

  private:
    void CarryOut(const QString& command);
    void AddShow();
    void EditSelectedShow();
    void DeleteSelectedShow();
    void Rename(int position, const QString& text, bool* cancel);
    void EditAgain(const QString& key);

    CommandCollection* commands_;
    ReportList* lvwList;
};

} // namespace lorvo
