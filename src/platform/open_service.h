#pragma once
// The desktop's open service.

#include <QString>

namespace lorvo {

class OpenService {
  public:
    virtual ~OpenService() = default;
    /// Hands a local file to the program that the desktop has for it. False when the desktop has
    /// none or could not start it, as far as it tells; waits up to two seconds for the answer.
    [[nodiscard]] virtual bool OpenFile(const QString& path) = 0;
    /// Hands an address ("mailto:...") to the desktop.
    virtual void OpenAddress(const QString& address) = 0;
};

} // namespace lorvo
