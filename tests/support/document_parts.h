#pragma once
// A written document taken apart: the folder it lies in, its parts, its paragraphs.

#include "platform/docx/docx_word_processor.h"

#include <QDomDocument>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>

namespace lorvo::test {

/// Remembers what it was asked to open.
class OpenedFiles : public OpenService {
  public:
    bool OpenFile(const QString& path) override {
        files.append(path);
        return opens;
    }
    void OpenAddress(const QString&) override {}
    QStringList files;
    bool opens = true;
};

/// Half past eight on a show's morning.
struct StoppedClock : Clock {
    DateValue Now() const override {
        return DateValue::FromCalendar(2027, 5, 14).WithSecondOfDay(8 * 3600 + 31 * 60 + 5);
    }
};

/// Documents in a temporary folder of their own.
struct DocumentDesk {
    QTemporaryDir folder;
    OpenedFiles opener;
    StoppedClock clock;
    DocxWordProcessors processors{opener, clock, Papers()};

    /// Where the documents come to lie; not there before the first one.
    QString Papers() const { return folder.filePath(QStringLiteral("Tisky")); }

    /// Types a document, shows it and returns its path.
    QString Document(const std::function<void(WordProcessor&)>& type);
};

/// Names of the entries of a zip file, in their order.
QStringList EntriesOf(const QString& path);
/// An entry's bytes; empty when there is none.
QByteArray EntryOf(const QString& path, const QString& entry);
/// A part ("word/styles.xml") as a tree; fails the test when it is not well-formed.
QDomElement PartOf(const QString& path, const QString& entry);

/// The text of each paragraph: "\t" for a tab, "{page}" for a page break.
QStringList ParagraphsOf(const QString& path);
/// All elements of that name below `root`, in document order.
QList<QDomElement> Elements(const QDomElement& root, const QString& name);
/// The style that a paragraph or run of the text names, "Normal" or "" when it names none.
QString StyleOf(const QDomElement& paragraphOrRun);
/// The definition of a style.
QDomElement StyleNamed(const QString& path, const QString& id);
/// Attribute "w:NAME" of the first descendant `element`; null when there is no such element.
QString Setting(const QDomElement& root, const QString& element, const QString& name);

} // namespace lorvo::test
