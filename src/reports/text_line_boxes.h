#pragma once
// The texts of a paper that the clerk may edit before it is put out.

#include <QStringList>
#include <QWidget>
#include <functional>
#include <vector>

class QFormLayout;

namespace lorvo {

/// Boxes `txtLine`, one below the other, each with its label before it. A long text has a box of
/// several lines.
class TextLineBoxes : public QWidget {
    Q_OBJECT
  public:
    explicit TextLineBoxes(QWidget* parent);

    /// Adds the next box of the array.
    void Add(const QString& label, const QString& text = {});
    /// What stands in a box.
    QString Text(int index) const;
    /// What stands in all boxes.
    QStringList Texts() const;

  private:
    QWidget* AddLine(const QString& text);
    QWidget* AddParagraph(const QString& text);

    QFormLayout* layout_;
    std::vector<std::function<QString()>> readers_;
};

} // namespace lorvo
