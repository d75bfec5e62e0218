#pragma once
// What the clerk has chosen about the look of the main window. The main window owns it and hands it
// to whoever builds or shows the tree.

namespace lorvo {

struct ViewPreferences {
    bool showClasses = false;     ///< classes stand between breeds and dogs
    bool rememberTree = false;    ///< the next start finds the tree as it was left
    bool dogDetailInTree = false; ///< dogs outside rings with closing and first dog
};

} // namespace lorvo
