#pragma once
// The window in which a dog is added or edited, together with its owner.

#include "dogs/dog_task.h"
#include "forms/form.h"
#include "store/psi.h"

#include <array>

class QDateEdit;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace lorvo {

class DogClassBox;
class DogOwnerBox;
class StoredTextsCombo;

/// An edited dog is the tree's selected node. After OK the dog is selected there.
class fm_Dog : public Form {
    Q_OBJECT
  public:
    fm_Dog(const DogTask& task, QWidget* parent);

  protected:
    void Load() override;

  private:
    QWidget* MakeDogSide();
    QWidget* MakeOwnerSide();
    QWidget* MakeGenderRow(QWidget* parent);
    void LimitTexts();
    void ShowDog(const Psi& dog);
    void UpdateClasses();
    void UpdateOKButton();
    /// Shows why the dog can't be stored; false.
    [[nodiscard]] bool Refuse(const QString& reason) const;
    bool CheckPostCode();
    [[nodiscard]] bool CheckOwner();
    Psi DogFromBoxes() const;
    void OK();

    std::array<QLineEdit*, 4> txtbox{}; ///< the dog's boxes of the window's array
    std::array<QRadioButton*, 2> optGender{};
    StoredTextsCombo* icStanice = nullptr;
    QDateEdit* dtBorn = nullptr;
    DogClassBox* classes_ = nullptr;
    StoredTextsCombo* icOtec = nullptr;
    StoredTextsCombo* icMatka = nullptr;
    DogOwnerBox* owner_ = nullptr;
    QPushButton* cmd_OK = nullptr;
    QPushButton* cmdCancel = nullptr;

    const DogTask task_;
    // What isn't shown here and an edit keeps.
    bool firstClosing_ = true;
    int colour_ = 0;
};

} // namespace lorvo
