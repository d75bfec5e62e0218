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
    void OpenFile(const QString& path) override { files.append(path); }
    void OpenAddress(const QString&) override {}
    QStringList files;
};

/// Documents in a temporary folder of their own.
struct DocumentDesk {
    QTemporaryDir folder;
    OpenedFiles opener;
    DocxWordProcessors processors{opener, folder.path()};

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
