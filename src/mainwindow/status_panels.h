#pragma once
// The status bar of the main window: four panels, each a picture and a text.

#include <QIcon>
#include <QStatusBar>
#include <array>

class QLabel;

namespace lorvo {

class StatusPanels : public QStatusBar {
    Q_OBJECT
  public:
    static constexpr int kCount = 4;

    explicit StatusPanels(const QString& name, QWidget* parent);

    /// Panels count from 1. A null icon is the blank picture.
    void SetPanel(int number, const QString& text, const QIcon& icon = {});
    void SetPanelVisible(int number, bool visible);
    /// The first `count` panels are shown, the others hidden.
    void ShowPanels(int count);
    /// Empty texts and blank pictures everywhere; what is shown stays shown.
    void Clear();

  private:
    struct Panel {
        QLabel* text;
        QLabel* picture; ///< lies on the text's left end
    };
    Panel MakePanel(int number);
    Panel& PanelAt(int number) { return panels_.at(static_cast<std::size_t>(number - 1)); }

    std::array<Panel, kCount> panels_;
};

} // namespace lorvo
