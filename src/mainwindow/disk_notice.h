#pragma once
// The word about data that the disk has kept back.

#include <QLabel>

class QStatusBar;

namespace lorvo {

/// Stands in the status bar and is seen while what was read last isn't whole because of the disk;
/// the tool tip gives the reason. What fails for other reasons is skipped without a word.
class DiskNotice : public QLabel {
    Q_OBJECT
  public:
    explicit DiskNotice(QStatusBar& bar);

    /// Tells the failure that was skipped since the last call, and is gone when there was none.
    void Refresh();
};

} // namespace lorvo
