#pragma once
// Takes one payment.

#include "forms/form.h"

class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lorvo {

class AutoCompleteBox;
struct Meny;
struct Uhrady;

/// Books a payment on the dog `Module().CurrentDogID`.
class frmPlatba : public Form {
    Q_OBJECT
  public:
    explicit frmPlatba(QWidget* parent);

  protected:
    /// StoreError when the dog's row is gone.
    void Load() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void LayOut();
    void ConnectControls();
    void FillCurrencies();
    /// The chosen currency as it is stored now. StoreError when it is gone.
    Meny ChosenCurrency() const;
    void ShowConverted();
    void FollowAmount(const QString& text);
    void Store();
    /// What the boxes say. RangeError when the amount is none or too large to keep.
    Uhrady Payment() const;

    QComboBox* cmbMena;
    QLineEdit* txtCastka;
    QLabel* lblPrepocteno;
    QComboBox* cmbZpusob;
    AutoCompleteBox* acUcet;
    QDateEdit* dtPrijata;
    QPushButton* cmdOK;
};

} // namespace lorvo
