#pragma once
// Edits that go into the file together or not at all.

#include "store/connection.h"

namespace lorvo {

/// All edits of its lifetime share one commit, which Finish makes. Without Finish, and after a
/// kill, the database is as it was before. Raises StoreError when another run of edits is under
/// way.
class WholeRun {
  public:
    explicit WholeRun(Connection& connection);
    ~WholeRun();
    WholeRun(const WholeRun&) = delete;
    WholeRun& operator=(const WholeRun&) = delete;
    /// Commits; raises StoreError when the edits can't be put on disk, and none of them then is.
    void Finish();

  private:
    void Leave();

    Connection& connection_;
    bool finished_ = false;
};

} // namespace lorvo
