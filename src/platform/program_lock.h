#pragma once
// One desk: two programs on one show would overwrite each other's screens.

#include <QString>

namespace lorvo {

/// While the object lives, no other program of ours takes the same folder. The lock is the
/// operating system's own and dies with the process, however that ends; nothing is left in the
/// folder or in the data.
class ProgramLock {
  public:
    /// Takes the folder unless another program has it.
    explicit ProgramLock(const QString& programFolder);
    ~ProgramLock();
    ProgramLock(const ProgramLock&) = delete;
    ProgramLock& operator=(const ProgramLock&) = delete;

    /// False when another program has the folder. A disk that knows no locks gives it to everybody.
    [[nodiscard]] bool IsMine() const { return isMine_; }

  private:
#ifdef Q_OS_WIN
    void* file_ = nullptr;
#else
    int folder_ = -1;
#endif
    bool isMine_ = true;
};

} // namespace lorvo
