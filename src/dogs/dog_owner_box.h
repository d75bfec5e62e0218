#pragma once
// The owner's part of the dog editor: one of the known owners, or a new one typed in.

#include "store/majitele.h"

#include <QGroupBox>
#include <map>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace lorvo {

class OwnerListModel;

class DogOwnerBox : public QGroupBox {
    Q_OBJECT
  public:
    explicit DogOwnerBox(QWidget* parent);

    /// Fills the list with all owners; none is chosen.
    void LoadMajitele();
    /// Shows the owner of an edited dog, surname and all, and chooses it in the list.
    void ShowOwnerOfDog(int majitelID);

    /// Whether a new owner is being typed.
    bool IsNewOwner() const;
    /// ID of the owner chosen in the list; 0 when none is.
    int SelectedOwnerID() const;
    /// Whether an owner is chosen or a new one is being typed.
    bool HasOwner() const { return IsNewOwner() || SelectedOwnerID() != 0; }
    /// What the boxes hold. The post code must have been checked.
    Majitele Boxes() const;
    QLineEdit& NameBox() const { return *txtbox.at(7); }
    QLineEdit& PostCodeBox() const { return *txtbox.at(9); }

  private:
    void LayOut();
    void FillBoxes();
    void AddName();
    void CancelName();
    /// The state with a new owner being typed, or with one chosen from the list.
    void SetNewOwner(bool on);

    OwnerListModel* owners_;
    QComboBox* cmbOwners;
    QPushButton* cmdAddName;
    QPushButton* cmdAddNameCancel;
    std::map<int, QLineEdit*> txtbox; ///< the owner's boxes of the window's array
    int SavedOwnerIndex = -1;         ///< what was chosen before a new owner was begun
};

} // namespace lorvo
