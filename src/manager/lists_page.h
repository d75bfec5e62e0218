#pragma once
// The page that hands lists out to other programs.

#include "manager/show_access.h"
#include "office/exchange/office_lists.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace lorvo {

class ReportList;

class ListsPage : public QWidget {
    Q_OBJECT
  public:
    ListsPage(const ShowAccess& show, QWidget* parent);

    /// Reads the chosen list anew, as each return to the page does, and shows its rows and totals.
    void ShowList();

    ReportList* lvwSeznamy;
    QPushButton* cmdCsv;
    QPushButton* cmdSheet;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void LayOut();
    void ShowRows();
    void SaveCsv();
    void SaveSheet();
    /// Asks where to, and puts the bytes there.
    void Save(const QString& filter, const QString& ending,
              const std::function<QByteArray(const ListTable&)>& bytes);

    const ShowAccess show_;
    ReportList* rows_ = nullptr;
    QLabel* totals_;
    ListTable table_;
};

} // namespace lorvo
