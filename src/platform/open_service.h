#pragma once
// The desktop's open service.

#include <QString>

namespace lorvo {

class OpenService {
  public:
    virtual ~OpenService() = default;
    /// Hands a local file to the program that the desktop has for it. What becomes of it is the
    /// desktop's matter; nothing is reported.
    virtual void OpenFile(const QString& path) = 0;
    /// Hands an address ("mailto:...") to the desktop.
    virtual void OpenAddress(const QString& address) = 0;
};

} // namespace lorvo
