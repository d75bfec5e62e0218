#pragma once
// Copies of the database while the main window works, and the word about one that failed.

#include "office/copies/background_copy.h"

#include <QLabel>

class QStatusBar;

namespace lorvo {

/// Stands in the status bar and is seen only when a copy has failed; the tool tip gives the reason.
class CopyKeeper : public QLabel {
    Q_OBJECT
  public:
    explicit CopyKeeper(QStatusBar& bar);
    ~CopyKeeper() override;

    /// Copies the database of the program's folder once the pending events, the first painting
    /// among them, are done. A damaged database ends the program with a message that names the
    /// newest good copy.
    void Begin();

    /// What a failed copy looks like.
    void Tell(const CopyOutcome& outcome);

  private:
    void Ended(const CopyOutcome& outcome);

    BackgroundCopy copy_;
};

} // namespace lorvo
