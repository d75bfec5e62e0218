#pragma once
// What both programs stand on: the desktop's real services, and Czech as their language.

namespace lorvo {

/// Fills ThePlatform() with the services of this desktop; the program's folder is that of the
/// executable.
void InstallRealPlatform();

/// Calendars, file windows and the menus of text boxes speak Czech as the rest of the program does.
/// The application object must be there.
void SpeakCzech();

} // namespace lorvo
