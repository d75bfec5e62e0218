#pragma once
// The settings: dates of the show, catalogue numbers, clearing, the wizard, currencies, looks.

#include "forms/form.h"

class QCheckBox;
class QDateEdit;
class QPushButton;
class QTabWidget;

namespace lorvo {

class CurrencyList;

class fm_Settings : public Form {
    Q_OBJECT
  public:
    explicit fm_Settings(QWidget* parent);

    void Activated() override;

  protected:
    void Load() override;

  private:
    QWidget* MakeSystemPage();
    QWidget* MakeDatesFrame();
    QWidget* MakeNumbersFrame();
    QWidget* MakeDatabaseFrame();
    QWidget* MakeWizardFrame();
    QWidget* MakeLookPage();

    /// Puts what is stored on the screen; runs again whenever the window comes back to the front.
    void LoadSettings();
    void LoadDates();
    void EnableNumberButtons();
    void LoadLooks();
    void Store();
    void GenerateNumbers();
    void RemoveNumbers();
    /// Which of the two buttons can be pressed next; the keyboard goes to OK.
    void SetNumbered(bool numbered);
    [[nodiscard]] bool Confirm(const QString& question) const;

    QTabWidget* XTab;
    QDateEdit* dtMeeting;
    QDateEdit* dtPrvniUzaverka;
    QDateEdit* dtDruhaUzaverka;
    QPushButton* cmdGenerateNumbers;
    QPushButton* cmdRemoveNumbers;
    QPushButton* cmdClearDatabase;
    QPushButton* Command1;
    QPushButton* cmdOK;
    CurrencyList* currencies_;
    QCheckBox* chkGrids;
    QCheckBox* chkRememberItem;
    QCheckBox* chkShowClasses;
    QCheckBox* chkSourozenci;
};

} // namespace lorvo
