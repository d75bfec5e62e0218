#pragma once
// The desktop's services that are made of widgets.

#include "platform/file_choice.h"
#include "platform/message_boxes.h"
#include "platform/popup_menus.h"
#include "platform/user_interface.h"

namespace lorvo {

class DesktopMessageBoxes : public MessageBoxes {
  public:
    MessageAnswer Show(const QString& text, MessageIcon icon, MessageButtons buttons,
                       const QString& title) override;
};

class DesktopPopupMenus : public PopupMenus {
  public:
    int TrackPopup(const std::vector<MenuEntry>& entries) override;
};

/// The path with the first ending of a filter as "CSV (*.csv)", unless it has one of these; what is
/// saved never takes the place of a file of another kind, as the database is.
QString WithEnding(const QString& path, const QString& filter);

class DesktopFileChoice : public FileChoice {
  public:
    QString Open(const QString& title, const QString& filter) override;
    QString Save(const QString& title, const QString& suggestedPath,
                 const QString& filter) override;
};

class DesktopUserInterface : public UserInterface {
  public:
    void SetWaitCursor(bool on) override;
    void ProcessEvents() override;
};

} // namespace lorvo
