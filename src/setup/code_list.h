#pragma once
// The window of a code list, edited in place: the colours and the awards differ in their texts and
// in the store's routines alone.

#include "forms/form.h"
#include "setup/code_list_texts.h"

#include <functional>
#include <vector>

class QToolBar;

namespace lorvo {

class ReportList;

struct CodeListRow {
    int ID = 0;
    QString Nazev;
};

/// The rows of a table that has an ID and a Nazev.
template<class Table> std::vector<CodeListRow> CodeListRows(const std::vector<Table>& table) {
    std::vector<CodeListRow> rows;
    for (const Table& row : table)
        rows.push_back({row.ID, row.Nazev});
    return rows;
}

struct CodeListStore {
    std::function<std::vector<CodeListRow>()> rows;
    std::function<int(int ID)> countUses;
    std::function<int(const QString&)> countNamed;
    std::function<int(const QString&)> insert;
    std::function<void(int ID, const QString&)> rename;
    std::function<void(int ID)> remove;
};

/// A tool bar of the lists edited in place: "Přidat", "Přejmenovat", "Smazat" with the keys Add,
/// Edit and Remove.
QToolBar* CodeListToolBar(const char* name, QWidget* parent);

class CodeListForm : public Form {
    Q_OBJECT
  public:
    CodeListForm(const CodeListTexts& texts, CodeListStore store, QWidget* parent);

  protected:
    void Load() override;

  private:
    void AddEntry();
    void EditEntry();
    void RemoveEntry();
    void StoreEntry(int position, const QString& text, bool* cancel);
    /// A row that isn't stored yet goes with its edit.
    void GiveUpEntry(int position);
    void RefuseDuplicate(int position, bool* cancel);
    int SelectedID() const;

    const CodeListTexts& texts_;
    CodeListStore store_;
    ReportList* list_;
};

} // namespace lorvo
