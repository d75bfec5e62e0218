#pragma once
// The tree and the panels beside it, shown over a database of the test's own.

#include "app/view_preferences.h"
#include "forms/form.h"
#include "forms/report_list.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/node_panels.h"
#include "mainwindow/status_panels.h"
#include "mainwindow/window_opener.h"
#include "office/tree/node_history.h"

#include "office/cards/card_test.h"
#include "support/modal_driver.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMainWindow>
#include <QSplitter>
#include <QTest>

namespace lorvo {

/// Stands for a window that isn't under test: it notes that it was opened, and closes.
class NotedForm : public Form {
  public:
    NotedForm(const char* name, QStringList& opened, QWidget* parent)
        : Form(name, QString(), Border::Sizable, parent), opened_(opened) {}

  protected:
    void Load() override {
        opened_ << objectName();
        reject();
    }

  private:
    QStringList& opened_;
};

class PanelsTest : public CardTest {
  protected:
    PanelsTest() {
        AddBreedsAndOwner();
        window.setWindowTitle(QStringLiteral("Lorvo"));
        window.setStatusBar(status);
        window.setCentralWidget(splitter);
        window.resize(1100, 760);
    }
    ~PanelsTest() override {
        for (auto& [name, factory] : replaced_)
            SetWindow(name, factory);
        delete splitter;
    }

    /// Loads the tree and shows the window.
    void Start() {
        tree->LoadData();
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Windows of these names can be opened from now on; `opened` notes each opening.
    void Offer(std::initializer_list<const char*> names) {
        for (const char* name : names)
            replaced_.emplace_back(
                QString::fromLatin1(name),
                SetWindow(QString::fromLatin1(name),
                          [this, name](const WindowInput& input, QWidget* parent) {
                              if (const DogTask* task = std::get_if<DogTask>(&input))
                                  dogTask = *task;
                              return std::make_unique<NotedForm>(name, opened, parent);
                          }));
    }
    /// Selects a node and shows it, as a click on it does.
    void Show(const QString& key) {
        tree->SelectNode(&nodes.Get(key));
        panels->ShowNodeInfo(key);
    }
    template<typename T> T& Get(const char* name) { return test::Control<T>(window, name); }
    /// Text of the label in sight with that accessible name; "-" when there is none.
    QLabel* Value(const QString& caption) {
        for (QLabel* label : window.findChildren<QLabel*>())
            if (label->isVisible() && label->accessibleName() == caption)
                return label;
        return nullptr;
    }
    QString Text(const QString& caption) {
        const QLabel* label = Value(caption);
        return label ? label->text() : QStringLiteral("-");
    }
    QString Text(const char* name) { return Get<QLabel>(name).text(); }
    QString Title() { return Text("lblItemTitle"); }
    bool InSight(const char* name) { return Get<QWidget>(name).isVisible(); }

    /// Texts of the status bar's panels that are shown, parted by " > ".
    QString Path() {
        QStringList texts;
        for (int n = 1; n <= StatusPanels::kCount; ++n)
            if (const auto& panel = Get<QLabel>(qPrintable(QStringLiteral("sbMain(%1)").arg(n)));
                panel.isVisible())
                texts << panel.text();
        return texts.join(QStringLiteral(" > "));
    }
    void Click(const char* name, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&Get<QWidget>(name), button);
    }
    /// Clicks the tick box of a row.
    void Tick(const char* list, const QString& key) {
        auto& view = Get<ReportList>(list);
        const int row = view.FindRow(key);
        ASSERT_GE(row, 0) << key.toStdString();
        const QRect rect = view.visualRect(view.model()->index(row, 0));
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.rect = rect;
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect box =
            view.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, box.center());
    }
    /// Keys of the ticked rows, parted by blanks.
    QString Ticked(const char* list) {
        const auto& view = Get<ReportList>(list);
        QStringList keys;
        for (int row = 0; row < view.RowCount(); ++row)
            if (view.Row(row).checked)
                keys << view.Row(row).key;
        return keys.join(u' ');
    }

    QMainWindow window;
    StatusPanels* status = new StatusPanels(QStringLiteral("sbMain"), &window);
    ViewPreferences look;
    TreeNodes nodes;
    NodeHistory history;
    QSplitter* splitter = new QSplitter(&window);
    MainTree* tree = new MainTree(nodes, look, splitter);
    NodePanels* panels = new NodePanels(*tree, *status, history, look, splitter);
    QStringList opened;
    DogTask dogTask; ///< what the dog editor was opened for last

  private:
    std::vector<std::pair<QString, WindowFactory>> replaced_;
};

} // namespace lorvo
