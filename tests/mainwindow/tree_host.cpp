#include "mainwindow/tree_host.h"

#include "store/data_module.h"

#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QVBoxLayout>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class StandIn : public Form {
  public:
    StandIn(const QString& name, QStringList& opened, QWidget* parent)
        : Form("StandIn", name, Border::Fixed, parent), name_(name), opened_(opened) {}

    void Activated() override {
        opened_.append(name_);
        accept();
    }

  private:
    QString name_;
    QStringList& opened_;
};

} // namespace

TreeHost::TreeHost() : tree(new MainTree(nodes, look, this)) {
    commands = new TreeCommands(*tree, *this, search, this);
    (new QVBoxLayout(this))->addWidget(tree);
    resize(400, 600);
    SetTheMainWindow(this);
}

TreeHost::~TreeHost() {
    SetTheMainWindow(nullptr);
    delete tree; // before the nodes that it shows
}

QString TreeHost::SelectedNode() const {
    const TreeNode* node = tree->SelectedNode();
    return node ? node->Key() : QString();
}

bool TreeHost::NodeExists(const QString& key) const {
    return nodes.Find(key) != nullptr;
}

QString TreeHost::NodeText(const QString& key) const {
    return nodes.Get(key).text;
}

void TreeHost::SelectNode(const QString& key) {
    tree->SelectNode(&nodes.Get(key));
}

void TreeHost::MakeNodeVisible(const QString& key) {
    tree->EnsureVisible(&nodes.Get(key));
}

void TreeHost::AddDogNode(const QString& parentKey, int psiID, const QString& text, bool male) {
    nodes.AddDog(&nodes.Get(parentKey), psiID, text, male);
}

void TreeHost::SetNodeText(const QString& key, const QString& text) {
    nodes.SetText(&nodes.Get(key), text);
}

void TreeHost::LoadData() {
    tree->LoadData();
}

void TreeHost::ShowNodeInfo(const QString& key) {
    shown.append(key);
}

void TreeHost::SetItemTitle(const QString& text) {
    itemTitle = text;
}

QString TreeHost::Caption() const {
    return u"Hlavní okno"_s;
}

TreeTest::TreeTest() {
    Module() = {};
    Load("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'A'), (2, 'B');"
         "INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat, FCI, Vlastni) VALUES"
         " (10, 'Boxer', 1, -1, 2, 0), (20, 'Pudl', 0, -1, 9, 0), (30, 'Vlastní', 0, -1, 0, -1);"
         "INSERT INTO Psi (ID, Jmeno, PlemenoID, MajitelID, PohlaviPes, Trida) VALUES"
         " (1, 'Alík', 10, 5, -1, 3), (2, 'Bára', 10, 6, 0, 4), (3, 'Cvrk', 20, 5, -1, 3)");
    host.show();
    // NOLINTNEXTLINE(bugprone-unused-return-value)
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&host));
    Tree().setFocus();
}

TreeTest::~TreeTest() {
    for (auto& [name, factory] : replaced_)
        SetWindow(name, std::move(factory));
    Module() = {};
}

void TreeTest::Load(const std::string& sql) {
    if (!sql.empty())
        database.Execute(sql);
    host.LoadData();
}

QPoint TreeTest::PlaceOf(const QString& key) const {
    Tree().EnsureVisible(&Node(key));
    const auto& model = static_cast<const TreeModel&>(*Tree().model());
    const QRect rect = Tree().visualRect(model.IndexOf(&Node(key)));
    return {rect.left() + 24, rect.center().y()};
}

QPoint TreeTest::EmptyPlace() const {
    return {20, Tree().viewport()->height() - 5};
}

void TreeTest::Click(const QString& key, Qt::MouseButton button) {
    QTest::mouseClick(Tree().viewport(), button, {}, PlaceOf(key));
}

void TreeTest::ClickEmpty(Qt::MouseButton button) {
    QTest::mouseClick(Tree().viewport(), button, {}, EmptyPlace());
}

void TreeTest::DoubleClick(const QString& key) {
    Click(key);
    QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, PlaceOf(key));
}

void TreeTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&Tree(), key, modifiers);
}

void TreeTest::Choose(const QString& key, int number) {
    platform.ExpectMenu(number);
    if (key.isEmpty())
        ClickEmpty(Qt::RightButton);
    else
        Click(key, Qt::RightButton);
}

void TreeTest::Drop(const QString& key, const QString& target) {
    auto& model = static_cast<TreeModel&>(*Tree().model());
    const std::unique_ptr<QMimeData> data(model.mimeData({model.IndexOf(&Node(key))}));
    EXPECT_TRUE(DropData(*data, target));
}

bool TreeTest::DropData(QMimeData& data, const QString& target) {
    const QPoint place = PlaceOf(target);
    QDragEnterEvent enter(place, Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(Tree().viewport(), &enter);
    QDragMoveEvent move(place, Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(Tree().viewport(), &move);
    QDropEvent drop(place, Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(Tree().viewport(), &drop);
    const bool taken = enter.isAccepted() && move.isAccepted();
    EXPECT_TRUE(!taken || drop.dropAction() == Qt::IgnoreAction);
    return taken;
}

QLineEdit* TreeTest::Editor() const {
    return Tree().viewport()->findChild<QLineEdit*>();
}

void TreeTest::StandInFor(const QString& window) {
    replaced_[window] =
        SetWindow(window, [this, window](const WindowInput& input, QWidget* parent) {
            if (const DogTask* task = std::get_if<DogTask>(&input))
                dogTask = *task;
            return std::make_unique<StandIn>(window, opened, parent);
        });
}

QString TreeTest::Scalar(const std::string& statement) const {
    RecordSet& rows = TheDataModule().rsrsQuery1;
    rows.Open(statement);
    const QString text = rows.Eof() ? QString() : rows.Field(0).ToText();
    rows.Close();
    return text;
}

} // namespace lorvo::test
