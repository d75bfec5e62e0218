#include "platform/docx/docx_package.h"

#include "platform/docx/xml_writer.h"
#include "platform/values/errors.h"

#include <QBuffer>
#include <functional>
#include <list>
#include <zip.h>

namespace lorvo::docx {

namespace {

/// 1 January 1980, the first day that a zip file knows.
constexpr zip_uint16_t kEntryDate = 1 << 5 | 1;
/// Higher levels take twice the time for a few percent of the size.
constexpr zip_uint32_t kDeflateLevel = 3;

constexpr std::string_view kOfficeType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.";
constexpr std::string_view kOfficeRelation =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

/// A part of its own beside the text; the text's relations lead to it.
struct Part {
    std::string_view name;
    std::string_view type; ///< its content type and its relation end with it
};
constexpr Part kParts[] = {
    {"styles", "styles"}, {"settings", "settings"}, {"fontTable", "fontTable"}};

QByteArray Xml(const std::function<void(XmlWriter&)>& write) {
    QByteArray text;
    QBuffer device(&text);
    device.open(QIODevice::WriteOnly);
    XmlWriter xml(device);
    write(xml);
    xml.Finish();
    return text;
}

std::string Joined(std::string_view a, std::string_view b, std::string_view c = {}) {
    return std::string(a).append(b).append(c);
}

void WriteContentType(XmlWriter& xml, std::string_view part, std::string_view type) {
    xml.Start("Override").Attribute("PartName", std::string_view(Joined("/word/", part, ".xml")));
    xml.Attribute("ContentType", std::string_view(Joined(kOfficeType, type, "+xml"))).End();
}

void WriteContentTypes(XmlWriter& xml) {
    xml.Start("Types").Attribute("xmlns",
                                 "http://schemas.openxmlformats.org/package/2006/content-types");
    xml.Start("Default").Attribute("Extension", "rels");
    xml.Attribute("ContentType", "application/vnd.openxmlformats-package.relationships+xml").End();
    xml.Start("Default").Attribute("Extension", "xml");
    xml.Attribute("ContentType", "application/xml").End();
    WriteContentType(xml, "document", "document.main");
    for (const Part& part : kParts)
        WriteContentType(xml, part.name, part.type);
    xml.End();
}

void StartRelations(XmlWriter& xml) {
    xml.Start("Relationships")
        .Attribute("xmlns", "http://schemas.openxmlformats.org/package/2006/relationships");
}

void WriteRelation(XmlWriter& xml, int number, std::string_view type, const std::string& target) {
    xml.Start("Relationship").Attribute("Id", std::string_view("rId" + std::to_string(number)));
    xml.Attribute("Type", std::string_view(Joined(kOfficeRelation, type)));
    xml.Attribute("Target", std::string_view(target)).End();
}

void WritePackageRelations(XmlWriter& xml) {
    StartRelations(xml);
    WriteRelation(xml, 1, "officeDocument", "word/document.xml");
    xml.End();
}

void WriteDocumentRelations(XmlWriter& xml) {
    StartRelations(xml);
    int number = 0;
    for (const Part& part : kParts)
        WriteRelation(xml, ++number, part.type, Joined(part.name, ".xml"));
    xml.End();
}

void WriteCompatibility(XmlWriter& xml) {
    xml.Start("w:compat").Start("w:compatSetting");
    xml.Attribute("w:name", "compatibilityMode");
    xml.Attribute("w:uri", "http://schemas.microsoft.com/office/word");
    xml.Attribute("w:val", 15).End().End();
}

void WriteSettings(XmlWriter& xml, const ViewSettings& view) {
    xml.Start("w:settings").Attribute("xmlns:w", kMainNamespace);
    if (view.printView)
        xml.Empty("w:view", "w:val", "print");
    xml.Start("w:zoom");
    if (view.wholePage)
        xml.Attribute("w:val", "fullPage");
    xml.Attribute("w:percent", 100).End();
    xml.Empty("w:defaultTabStop", "w:val", TwipsFromCentimeters(1.25));
    WriteCompatibility(xml);
    xml.Empty("w:themeFontLang", "w:val", "cs-CZ");
    xml.Empty("w:decimalSymbol", "w:val", ",");
    xml.Empty("w:listSeparator", "w:val", ";");
    xml.End();
}

/// A new zip file. What is added to it is read when it is closed.
class ZipFile {
  public:
    explicit ZipFile(const QString& path) : path_(path) {
        int error = 0;
        zip_ = zip_open(path.toUtf8().constData(), ZIP_CREATE | ZIP_EXCL, &error);
        Require(zip_ != nullptr);
    }
    ~ZipFile() {
        if (zip_)
            zip_discard(zip_);
    }
    ZipFile(const ZipFile&) = delete;
    ZipFile& operator=(const ZipFile&) = delete;

    void AddText(const char* name, QByteArray text) {
        const QByteArray& kept = texts_.emplace_back(std::move(text));
        const auto size = static_cast<zip_uint64_t>(kept.size());
        Add(name, zip_source_buffer(zip_, kept.constData(), size, 0));
    }
    void AddFile(const char* name, const QString& path) {
        Add(name, zip_source_file(zip_, path.toUtf8().constData(), 0, -1));
    }
    void Close() {
        Require(zip_close(zip_) == 0);
        zip_ = nullptr;
    }

  private:
    void Add(const char* name, zip_source_t* source) {
        Require(source != nullptr);
        const zip_int64_t index = zip_file_add(zip_, name, source, ZIP_FL_ENC_UTF_8);
        if (index < 0)
            zip_source_free(source);
        Require(index >= 0);
        const auto entry = static_cast<zip_uint64_t>(index);
        Require(zip_set_file_compression(zip_, entry, ZIP_CM_DEFLATE, kDeflateLevel) == 0);
        Require(zip_file_set_dostime(zip_, entry, 0, kEntryDate, 0) == 0);
    }
    void Require(bool done) const {
        if (!done)
            throw PlatformError(
                QStringLiteral("Dokument „%1“ nelze vytvořit. Zkontrolujte volné místo na disku a "
                               "práva ke složce.")
                    .arg(path_)
                    .toStdString());
    }

    QString path_;
    std::list<QByteArray> texts_;
    zip_t* zip_ = nullptr;
};

} // namespace

void PackDocument(const QString& path, const QString& body, const Styles& styles,
                  const ViewSettings& view) {
    ZipFile zip(path);
    zip.AddText("[Content_Types].xml", Xml(WriteContentTypes));
    zip.AddText("_rels/.rels", Xml(WritePackageRelations));
    zip.AddFile("word/document.xml", body);
    zip.AddText("word/_rels/document.xml.rels", Xml(WriteDocumentRelations));
    zip.AddText("word/styles.xml", Xml([&](XmlWriter& xml) { styles.WriteStyles(xml); }));
    zip.AddText("word/settings.xml", Xml([&](XmlWriter& xml) { WriteSettings(xml, view); }));
    zip.AddText("word/fontTable.xml", Xml([&](XmlWriter& xml) { styles.WriteFontTable(xml); }));
    zip.Close();
}

} // namespace lorvo::docx
