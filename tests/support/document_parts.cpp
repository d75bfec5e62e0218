#include "support/document_parts.h"

#include <gtest/gtest.h>
#include <zip.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

struct ClosedZip {
    void operator()(zip_t* zip) const { zip_discard(zip); }
};
using Zip = std::unique_ptr<zip_t, ClosedZip>;

Zip OpenZip(const QString& path) {
    return Zip(zip_open(path.toUtf8().constData(), ZIP_RDONLY, nullptr));
}

QString TextOf(const QDomElement& paragraph) {
    QString text;
    for (QDomElement run = paragraph.firstChildElement(u"w:r"_s); !run.isNull();
         run = run.nextSiblingElement(u"w:r"_s)) {
        for (QDomElement child = run.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            if (child.tagName() == u"w:t")
                text += child.text();
            if (child.tagName() == u"w:tab")
                text += u'\t';
            if (child.tagName() == u"w:br")
                text += u"{%1}"_s.arg(child.attribute(u"w:type"_s));
        }
    }
    return text;
}

} // namespace

QString DocumentDesk::Document(const std::function<void(WordProcessor&)>& type) {
    const auto word = processors.Create(u"Katalog"_s);
    type(*word);
    return word->Show().path;
}

QStringList EntriesOf(const QString& path) {
    const Zip zip = OpenZip(path);
    QStringList names;
    for (zip_int64_t i = 0; zip && i < zip_get_num_entries(zip.get(), 0); ++i)
        names.append(QString::fromUtf8(zip_get_name(zip.get(), static_cast<zip_uint64_t>(i), 0)));
    return names;
}

QByteArray EntryOf(const QString& path, const QString& entry) {
    const Zip zip = OpenZip(path);
    zip_stat_t stat;
    if (!zip || zip_stat(zip.get(), entry.toUtf8().constData(), 0, &stat) != 0)
        return {};
    QByteArray bytes(static_cast<qsizetype>(stat.size), '\0');
    zip_file_t* file = zip_fopen(zip.get(), entry.toUtf8().constData(), 0);
    zip_fread(file, bytes.data(), stat.size);
    zip_fclose(file);
    return bytes;
}

QDomElement PartOf(const QString& path, const QString& entry) {
    QDomDocument document;
    QString message;
    // Whitespace-only text matters, which the plain overload would drop.
    const QByteArray bytes = EntryOf(path, entry);
    EXPECT_TRUE(document.setContent(bytes, false, &message))
        << entry.toStdString() << ": " << message.toStdString();
    return document.documentElement();
}

QStringList ParagraphsOf(const QString& path) {
    QStringList texts;
    const QDomElement root = PartOf(path, u"word/document.xml"_s);
    for (const QDomElement& paragraph : Elements(root, u"w:p"_s))
        texts.append(TextOf(paragraph));
    return texts;
}

QList<QDomElement> Elements(const QDomElement& root, const QString& name) {
    QList<QDomElement> elements;
    const QDomNodeList found = root.elementsByTagName(name);
    for (int i = 0; i < found.size(); ++i)
        elements.append(found.at(i).toElement());
    return elements;
}

QString StyleOf(const QDomElement& paragraphOrRun) {
    const bool paragraph = paragraphOrRun.tagName() == u"w:p";
    const QDomElement style = paragraphOrRun.firstChildElement(paragraph ? u"w:pPr"_s : u"w:rPr"_s)
                                  .firstChildElement(paragraph ? u"w:pStyle"_s : u"w:rStyle"_s);
    return style.attribute(u"w:val"_s, paragraph ? u"Normal"_s : QString());
}

QDomElement StyleNamed(const QString& path, const QString& id) {
    const QDomElement root = PartOf(path, u"word/styles.xml"_s);
    for (const QDomElement& style : Elements(root, u"w:style"_s))
        if (style.attribute(u"w:styleId"_s) == id)
            return style;
    ADD_FAILURE() << "no style " << id.toStdString();
    return {};
}

QString Setting(const QDomElement& root, const QString& element, const QString& name) {
    const QList<QDomElement> found = Elements(root, element);
    return found.isEmpty() ? QString() : found.first().attribute(u"w:"_s + name);
}

} // namespace lorvo::test
