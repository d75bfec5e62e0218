#pragma once
// The filter of the dog list: what a subset of the dogs would be picked by. No choice made in it
// narrows the list.

#include "forms/form.h"

#include <array>

class QCheckBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace lorvo {

class ReportList;

class frmDogListFilter : public Form {
    Q_OBJECT
  public:
    explicit frmDogListFilter(QWidget* parent);

  protected:
    void Load() override;

  private:
    QWidget* MakeDogPage();
    QWidget* MakeOwnerPage();
    QWidget* MakeBreedPage();
    QWidget* MakeGenderFrame();
    QWidget* MakeDateFrame();
    QWidget* MakeFinanceFrame();
    ReportList* AddListPage(const char* name, const QString& caption, const QStringList& headings);
    ReportList* MakeCheckList(const char* name, const QStringList& headings, QLabel* label);

    void ShowBreedMenu();
    void CheckBreeds(bool checked, bool ownOnly);

    QTabWidget* XTab;
    QLineEdit* txtJmeno;
    QLineEdit* txtMajitel;
    ReportList* lvwTridy;
    ReportList* lvwKruhy;
    ReportList* lvwPlemena;
    ReportList* lvwVystavy;
    ReportList* lvwOceneni;
    QLabel* lblPlemena;
    std::array<QCheckBox*, 3> chkFinance;
    std::array<QRadioButton*, 2> optGender;
    QDateEdit* dtBorn;
    QDateEdit* DTPicker1;
    QPushButton* cmdMenu;
};

} // namespace lorvo
