#include "platform/platform.h"

namespace lorvo {

Platform& ThePlatform() {
    static Platform platform;
    return platform;
}

} // namespace lorvo
