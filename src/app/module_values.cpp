#include "app/module_values.h"

namespace lorvo {

ModuleValues& Module() {
    static ModuleValues values;
    return values;
}

} // namespace lorvo
