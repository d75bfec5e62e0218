#pragma once
// What a run tells the window that started it.

namespace lorvo {

class RunProgress {
  public:
    virtual ~RunProgress() = default;
    /// Shows how far the run is and lets the window live. False when the clerk has asked to stop.
    /// `row` counts from 1.
    [[nodiscard]] virtual bool Advance(int row, int rows) = 0;
};

/// Takes row after row, each after the progress has come to it, until the clerk asks to stop.
template<class Rows, class Take> void WalkRows(const Rows& rows, RunProgress& progress, Take take) {
    int number = 0;
    for (const auto& row : rows) {
        if (!progress.Advance(++number, static_cast<int>(rows.size())))
            return;
        take(row);
    }
}

} // namespace lorvo
