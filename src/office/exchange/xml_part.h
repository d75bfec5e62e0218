#pragma once
// Walking through one part of a document, element by element. Names are compared without their
// namespaces, since one format has several sets of them.

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

namespace lorvo {

class XmlPart : public QXmlStreamReader {
  public:
    /// `name` is the part's, for the text of a failure.
    XmlPart(const QByteArray& bytes, const QString& name);

    /// Goes into the next child of that name; others are passed over. False at the parent's end.
    bool EnterChild(QStringView child);
    /// Goes to the next element's start or to the end of the one that was entered last; false
    /// there. Raises PlatformError with the part's name and the line where the text is malformed.
    bool NextChild();
    /// Goes to the next token. Raises as NextChild does.
    TokenType Next();
    /// Passes over the element that was entered last. Raises as NextChild does.
    void Skip();
    /// The text of the element that was entered last, without that of its children. Raises as
    /// NextChild does.
    QString Text();
    /// The attribute of the element that was entered last; empty where it has none.
    [[nodiscard]] QString Attribute(QStringView attribute) const;

  private:
    void RequireWhole() const;

    QString name_;
};

} // namespace lorvo
