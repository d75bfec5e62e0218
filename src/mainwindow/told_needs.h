#pragma once
// When a widget has to speak up about its size.

#include <QSize>
#include <array>
#include <optional>

class QResizeEvent;
class QWidget;

namespace lorvo {

/// What a widget last told the layout that it stands in. Each change of a text makes the toolkit
/// tell the widget, that one the one around it, and so on to the window, and on the way back all is
/// laid out anew, though hardly any text needs another size than the one before it. A widget that
/// has this at hand passes on what makes a difference.
class ToldNeeds {
  public:
    /// The content has changed: whether the widget needs anything else than it has told, in its
    /// present width and in those that a scroll bar beside it gives and takes. What differs counts
    /// as told from then on.
    bool ToTell(const QWidget& widget);
    /// The widget has another size: whether a change that made no difference may make one now.
    bool ToTell(const QResizeEvent& resize);
    /// The layout has been told by others.
    void Forget() { told_.reset(); }

  private:
    struct Needs {
        QSize least;
        int width;
        std::array<int, 3> heights;
        bool operator==(const Needs&) const = default;
    };

    std::optional<Needs> told_;
    bool keptBack_ = false;
};

} // namespace lorvo
