// The family of pictures, drawn at build time for every size that a display asks for.

#include "forms/controls.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <algorithm>
#include <set>
#include <vector>

/// Outside the namespace, as the resource compiler's function is.
static void LoadIconResources() {
    Q_INIT_RESOURCE(forms);
}

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QHash<QString, QIcon>& LoadedIcons() {
    static QHash<QString, QIcon> icons;
    return icons;
}

/// The folders of the pictures, named by their side in pixels; rising.
std::vector<int> LoadSides() {
    LoadIconResources();
    // Pictures must not outlive the application.
    qAddPostRoutine([] { LoadedIcons().clear(); });
    std::vector<int> sides;
    for (const QString& folder : QDir(u":/lorvo/icons"_s).entryList(QDir::Dirs))
        sides.push_back(folder.toInt());
    std::ranges::sort(sides);
    return sides;
}

/// A picture in all its sizes, each read only when it is painted: reading them all takes longer
/// than the whole rest of a start.
class FamilyIcon : public QIconEngine {
  public:
    FamilyIcon(const QString& name, const std::vector<int>& sides) : name_(name) {
        for (const int side : sides)
            if (QFile::exists(FileOf(side)))
                sides_.push_back(side);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        Read(rect.size() * painter->device()->devicePixelRatio());
        read_.paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        Read(size);
        return read_.pixmap(size, 1.0, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        const int side = BestSide(size);
        return QSize(side, side).boundedTo(size);
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int side : sides_)
            sizes.push_back({side, side});
        return sizes;
    }
    bool isNull() override { return sides_.empty(); }
    QIconEngine* clone() const override { return new FamilyIcon(*this); }

  private:
    QString FileOf(int side) const { return u":/lorvo/icons/%1/%2.png"_s.arg(side).arg(name_); }

    /// The smallest that is large enough, else the largest; 0 for a name without a picture.
    int BestSide(const QSize& size) const {
        const auto enough = std::ranges::find_if(
            sides_, [&](int side) { return side * side >= size.width() * size.height(); });
        return enough != sides_.end() ? *enough : sides_.empty() ? 0 : sides_.back();
    }

    void Read(const QSize& size) {
        const int side = BestSide(size);
        if (side > 0 && readSides_.insert(side).second)
            read_.addFile(FileOf(side), QSize(side, side));
    }

    QString name_;
    std::vector<int> sides_; ///< rising
    std::set<int> readSides_;
    QIcon read_;
};

QIcon LoadIcon(const QString& name) {
    static const std::vector<int> sides = LoadSides();
    return QIcon(new FamilyIcon(name, sides));
}

} // namespace

QIcon ProgramIcon(const QString& name) {
    QHash<QString, QIcon>& icons = LoadedIcons();
    const auto loaded = icons.constFind(name);
    return loaded != icons.constEnd() ? *loaded : *icons.insert(name, LoadIcon(name));
}

} // namespace lorvo
