#include "bare_window.h"

#include <QCoreApplication>
#include <QEvent>

namespace lorvo::bench {

namespace {

class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }
    bool painted = false;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void BareModel::SetDogs(std::vector<BareDog> dogs) {
    beginResetModel();
    dogs_ = std::move(dogs);
    firstDog_.clear();
    for (int i = 0; i < static_cast<int>(dogs_.size()); ++i) {
        if (i == 0 || dogs_[static_cast<std::size_t>(i)].PlemenoID !=
                          dogs_[static_cast<std::size_t>(i - 1)].PlemenoID)
            firstDog_.push_back(i);
    }
    firstDog_.push_back(static_cast<int>(dogs_.size()));
    endResetModel();
}

QModelIndex BareModel::index(int row, int column, const QModelIndex& parent) const {
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row() + 1) : 0);
}

QModelIndex BareModel::parent(const QModelIndex& index) const {
    return index.internalId()
               ? createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr(0))
               : QModelIndex();
}

int BareModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return static_cast<int>(firstDog_.size()) - 1;
    const auto breed = static_cast<std::size_t>(parent.row());
    return parent.internalId() ? 0 : firstDog_[breed + 1] - firstDog_[breed];
}

int BareModel::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant BareModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    if (index.internalId() == 0)
        return dogs_[static_cast<std::size_t>(firstDog_[static_cast<std::size_t>(index.row())])]
            .PlemenoID;
    return dogs_[static_cast<std::size_t>(firstDog_[index.internalId() - 1] + index.row())].Jmeno;
}

BareWindow::BareWindow() {
    resize(1200, 800);
    setCentralWidget(&tree_);
    tree_.setUniformRowHeights(true);
    tree_.setHeaderHidden(true);
    tree_.setModel(&model_);
}

void BareWindow::Load(BareDatabase& database) {
    model_.SetDogs(ReadDogs(database));
}

void WaitForPaint(QWidget& painted) {
    PaintWatch watch(painted);
    // Without sleeping: the offscreen platform for Windows sleeps over a paint that waits already.
    while (!watch.painted)
        QCoreApplication::processEvents();
}

void PaintChanges(QWidget& window) {
    QCoreApplication::sendPostedEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
}

} // namespace lorvo::bench
