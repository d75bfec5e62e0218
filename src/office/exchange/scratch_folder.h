#pragma once
// Room for what the library of spreadsheets writes by files alone.

#include "platform/file_failure.h"

#include <QDir>
#include <QTemporaryDir>

namespace lorvo {

/// A folder that goes with the object. PlatformError names where it can't be made, and the cause.
class ScratchFolder : public QTemporaryDir {
  public:
    ScratchFolder() {
        if (!isValid())
            FailOnFile(QStringLiteral("Dočasnou složku nejde založit"), QDir::tempPath(),
                       CauseOfLastFailure());
    }
};

} // namespace lorvo
