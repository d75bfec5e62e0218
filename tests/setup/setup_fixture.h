#pragma once
// What the tests of the set-up's windows share: an empty database, the windows opened modally, and
// hands for their lists.

#include "app/module_values.h"
#include "forms/form.h"
#include "forms/report_list.h"
#include "store/routines_fixture.h"
#include "support/modal_driver.h"
#include "support/recording_main_window.h"
#include "support/recording_platform.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace lorvo::test {

/// The editor in place of a list or tree; null when no edit goes on.
inline QLineEdit* EditorOf(const QWidget& view) {
    const auto editors =
        view.findChildren<QLineEdit*>(view.objectName() + QStringLiteral(".editor"));
    for (QLineEdit* editor : editors)
        if (editor->isVisible())
            return editor;
    return nullptr;
}

/// Lets what an event has put off happen, and what that has put off in turn.
inline void Settle() {
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

/// Types into the edit that goes on and ends it by a key.
inline void TypeInPlace(const QWidget& view, const QString& text, Qt::Key end = Qt::Key_Return) {
    QLineEdit* editor = EditorOf(view);
    ASSERT_TRUE(editor) << "no edit in place";
    editor->selectAll();
    if (text.isEmpty())
        QTest::keyClick(editor, Qt::Key_Delete);
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_unknown, QString(letter), {});
    QTest::keyClick(editor, end);
    Settle();
}

/// "Krufts|3" of each row, in the order of the list.
inline Texts RowsOf(const ReportList& list) {
    Texts rows;
    for (int row = 0; row < list.RowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < list.ColumnCount(); ++column)
            cells << list.CellText(row, column);
        rows.push_back(cells.join(u'|').toStdString());
    }
    return rows;
}

class SetupTest : public RoutinesTest {
  protected:
    SetupTest() { Module() = ModuleValues(); }
    ~SetupTest() override { Module() = ModuleValues(); }

    template<class Window> void Open(const std::function<void(QWidget&)>& inside) {
        Window window(nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }

    static ReportList& List(QWidget& window, const char* name) {
        return Control<ReportList>(window, name);
    }
    static QLineEdit& Box(QWidget& window, const char* name) {
        return Control<QLineEdit>(window, name);
    }
    static QCheckBox& Tick(QWidget& window, const char* name) {
        return Control<QCheckBox>(window, name);
    }
    static void Press(QWidget& window, const char* button) {
        Control<QPushButton>(window, button).click();
    }
    static void Command(QWidget& window, const char* key) {
        Control<QAction>(window, key).trigger();
    }
    static bool IsEnabled(QWidget& window, const char* control) {
        return Control<QWidget>(window, control).isEnabled();
    }
    /// Starts an edit in place by F2 and types the text.
    static void Rename(ReportList& list, int row, const char* text) {
        list.SelectRow(row);
        QTest::keyClick(&list, Qt::Key_F2);
        TypeInPlace(list, Text(text));
    }
    static void DoubleClick(ReportList& list, int row) {
        list.SelectRow(row);
        const QPoint middle = list.visualRect(list.model()->index(row, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle);
    }

    static int AddDog(const char* name, int breed, Assignments more = {}) {
        Assignments fields = {
            {"Jmeno", Text(name)}, {"PlemenoID", breed}, {"Trida", 5}, {"PohlaviPes", true}};
        for (auto& field : more)
            fields.push_back(std::move(field));
        return Add("Psi", fields);
    }
    static int AddBreed(const char* name, Assignments more = {}) {
        Assignments fields = {{"Nazev", Text(name)}, {"NazevOrig", Text("Orig")}, {"Parent", 0}};
        for (auto& field : more)
            fields.push_back(std::move(field));
        return Add("Plemena", fields);
    }
    static int AddShow(const char* name, Assignments more = {}) {
        more.insert(more.begin(), {"Nazev", Text(name)});
        return Add("Vystavy", more);
    }
    static void Enter(int dog, int show) {
        AddLink("PsiVeVystavach", {{"PesID", dog}, {"VystavaID", show}});
    }
    static std::string One(const std::string& statement) {
        const Texts texts = Column(statement);
        return texts.size() == 1 ? texts[0] : std::to_string(texts.size()) + " rows";
    }

    RecordingPlatform platform;
    RecordingMainWindow tree;
};

} // namespace lorvo::test
