#pragma once
// The wizard: five pages that introduce what an office settles before entries begin. It stores
// nothing; each page names the window that does.

#include "forms/form.h"

#include <array>
#include <vector>

class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace lorvo {

class BreedTree;

class frmWizard : public Form {
    Q_OBJECT
  public:
    explicit frmWizard(QWidget* parent);

  protected:
    void Load() override;
    /// Esc asks as the button does; the window's frame closes without a question.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    static constexpr int kPages = 5;

    void BuildButtons();
    void SizeTexts();
    QWidget* AddPage(const QString& text);
    QLineEdit* AddBox(QWidget* page, const char* name, const QString& frame, const QString& text);
    QWidget* MakeSummary(QWidget* page);
    void FillSummary();
    void ShowPage(int page);
    void GoForward();
    void Quit();

    int page_ = 0;
    QStackedWidget* pages_;
    std::vector<QLabel*> texts_; ///< lblText of each page, all of one size
    QLabel* lblTitle;
    QPushButton* cmdBack = nullptr;
    QPushButton* cmdFwd = nullptr;
    QDateEdit* dtDatum;
    QLineEdit* txtNazevVystavy;
    QLineEdit* txtNazevMeny;
    QLineEdit* txtCurrency;
    BreedTree* tvwWizardPlemena;
    std::array<QLabel*, 4> summary_{};
};

} // namespace lorvo
