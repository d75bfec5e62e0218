#include "mainwindow/tree_search.h"

#include "app/main_window_services.h"
#include "office/tree/node_search.h"
#include "platform/platform.h"
#include "platform/values/errors.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Null when nothing fits, or when the text can't be searched for.
const TreeNode* NextMatch(const TreeNodes& nodes, TreeSearch& search) {
    try {
        return FindByText(nodes, search.text, search.start);
    } catch (const Error& error) {
        ThePlatform().messages->Show(QString::fromUtf8(error.what()), MessageIcon::Exclamation,
                                     MessageButtons::Ok, u"Hledat text"_s);
        return nullptr;
    }
}

} // namespace

bool SelectNextMatch(TreeSearch& search, MainWindowServices& mainWindow) {
    const TreeNode* match = NextMatch(mainWindow.Nodes(), search);
    if (match)
        mainWindow.SelectNode(match->Key());
    return match != nullptr;
}

} // namespace lorvo
