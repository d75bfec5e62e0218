#pragma once
// The page that takes entries in from a table: file, letters and columns, judged lines, taking.

#include "manager/show_access.h"
#include "office/exchange/entry_fields.h"
#include "office/exchange/entry_line.h"
#include "office/exchange/entry_source.h"
#include "office/exchange/entry_taking.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

namespace lorvo {

class ReportList;

class EntriesPage : public QWidget {
    Q_OBJECT
  public:
    EntriesPage(const ShowAccess& show, QWidget* parent);

    QPushButton* cmdFile;
    QPushButton* cmdColumns;
    QPushButton* cmdTake;
    QPushButton* cmdRest;
    QPushButton* cmdTemplate;
    QComboBox* cmbEncoding;
    QComboBox* cmbSeparator;
    QComboBox* cmbShow;
    ReportList* lvwLines; ///< ticked lines are taken
    QLabel* lblFile;
    QLabel* lblCounts;

  private:
    void FillCombos();
    QLayout* ChoiceRow();
    void LayOut();
    void ConnectControls();
    void ChooseFile();
    void ReadAnew(); ///< letters or separator have changed
    void ChooseColumns();
    /// The shows as they are; the chosen one stays chosen.
    void FillShows();
    bool IsShowThere() const;
    void Judge();
    /// What the clerk ticked or cleared stays so where the line is judged as before.
    void JudgeForShow();
    std::vector<EntryLine> JudgedNow() const;
    void ShowLines();
    void ShowCounts();
    void KeepTick(int position);
    bool IsTicked(const EntryLine& line) const;
    void Take();
    void SayTaken(const TakingReport& report);
    void SaveRest();
    void SaveTemplate();

    const ShowAccess show_;
    EntrySource source_;
    ColumnChoice columns_;
    std::vector<EntryLine> lines_;
};

} // namespace lorvo
