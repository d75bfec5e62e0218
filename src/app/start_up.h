#pragma once
// What the program does with the store and the settings when it starts and ends; the main window
// calls it step by step between its own.

#include <QString>
#include <QStringList>

namespace lorvo {

/// Opens the database file of the program's own folder. Raises StoreError that names the file and
/// the reason.
void OpenDatabase();

/// Whether the tree has a level of classes.
bool ShowClassesPreferred();
/// Whether lists show grid lines.
bool ShowGridPreferred();

/// Gives a database without shows its main one, "Hlavní výstava". Raises StoreError.
void EnsureShow();

/// Puts the abbreviation of the main currency into the module value `MainCurrency`, "Kč" when there
/// is no main one. A failing statement counts as none.
void ReadMainCurrency();

/// Sees to exactly one main currency and puts its abbreviation into the module value
/// `MainCurrency`, "Kč" when there is no currency at all. Of several marked ones the first wins;
/// rows that bear the winner's abbreviation keep their mark. Failing statements are skipped.
void EnsureMainCurrency();

/// The node that was selected when the program last ended. Empty while remembering is off.
QString RememberedNode();
/// Stores what is to be found at the next start. `selected` is empty when no node is selected,
/// which leaves the one stored before; `expanded` holds the keys of the expanded nodes in tree
/// order.
void RememberTree(const QString& selected, const QStringList& expanded);
/// Switches remembering off for the next start.
void ForgetTree();

} // namespace lorvo
