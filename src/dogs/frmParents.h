#pragma once
// The names that stand as fathers and mothers of dogs, with the way to their offspring.

#include "forms/form.h"

class QAction;
class QToolBar;

namespace lorvo {

class ReportList;

/// Parents have no table of their own: a name is changed by editing the dogs that bear it.
class frmParents : public Form {
    Q_OBJECT
  public:
    explicit frmParents(QWidget* parent);

  protected:
    void Load() override;

  private:
    QAction* AddToggle(const QString& key, const QString& caption, const QString& picture);
    void ShowToggled();
    void ShowParents(bool fathers, bool mothers);
    void ShowOffspringMenu(int position);

    QToolBar* tbrSouteze;
    QAction* both_;
    QAction* males_;
    QAction* females_;
    ReportList* lvwList;
};

} // namespace lorvo
