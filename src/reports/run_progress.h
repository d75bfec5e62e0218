#pragma once
// What a run tells the window that started it.

namespace lorvo {

class RunProgress {
  public:
    virtual ~RunProgress() = default;
    /// Shows how far the run is and lets the window live. False when the clerk has asked to stop.
    /// `row` counts from 1.
    virtual bool Advance(int row, int rows) = 0;
};

} // namespace lorvo
