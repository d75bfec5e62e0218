#pragma once
// The competitions beside the class judging.

#include "forms/form.h"

class QAction;

namespace lorvo {

class ReportList;

class fm_Souteze : public Form {
    Q_OBJECT
  public:
    explicit fm_Souteze(QWidget* parent);

  protected:
    void Load() override;

  private:
    void BuildControls();
    /// Reads the list anew and selects its first row.
    void Fill();
    void Rename(int position, const QString& text, bool* cancel);
    void AddCompetition();
    void EditSelected();
    void ShowEntries();
    void RemoveSelected();
    /// Reads the list anew and comes back to the row of that text, if there still is one.
    void FillAndReselect(const QString& text);
    void OfferEntries();
    int CompetitionAt(int position) const;

    QAction* logged_;
    bool greyedByDeletion_ = false;
    ReportList* lvwSouteze;
};

} // namespace lorvo
