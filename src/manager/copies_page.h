#pragma once
// The page of copies: listed, made, compared, put back.

#include "manager/show_access.h"
#include "office/copies/show_copies.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace lorvo {

class ReportList;

class CopiesPage : public QWidget {
    Q_OBJECT
  public:
    CopiesPage(const ShowAccess& show, QWidget* parent);

    /// Lists the folder anew, as each return to the page does; each copy is checked whole.
    void Refill();

    ReportList* lvwZalohy; ///< the first row is the present state
    QPushButton* cmdMake;
    QPushButton* cmdCompare;
    QPushButton* cmdPutBack;
    QLabel* lblPorovnani;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void LayOut();
    void ConnectControls();
    void AddRows();
    void Enable();
    void Make();
    void Compare();
    void PutBack();
    /// Path of a row's file.
    QString PathOf(int position) const;

    const ShowAccess show_;
    std::vector<ShowCopy> copies_;
};

} // namespace lorvo
