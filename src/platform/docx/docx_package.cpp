#include "platform/docx/docx_package.h"

#include "platform/docx/xml_writer.h"
#include "platform/values/errors.h"

#include <QBuffer>
#include <functional>
#include <memory>
#include <utility>
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
    xml.Start("Override").Attribute("PartName", part).Attribute("ContentType", type).End();
}

void WriteTextContentType(XmlWriter& xml, std::string_view part, std::string_view type) {
    WriteContentType(xml, Joined("/word/", part, ".xml"), Joined(kOfficeType, type, "+xml"));
}

void WriteContentTypes(XmlWriter& xml) {
    xml.Start("Types").Attribute("xmlns",
                                 "http://schemas.openxmlformats.org/package/2006/content-types");
    xml.Start("Default").Attribute("Extension", "rels");
    xml.Attribute("ContentType", "application/vnd.openxmlformats-package.relationships+xml").End();
    xml.Start("Default").Attribute("Extension", "xml");
    xml.Attribute("ContentType", "application/xml").End();
    WriteTextContentType(xml, "document", "document.main");
    for (const Part& part : kParts)
        WriteTextContentType(xml, part.name, part.type);
    WriteContentType(xml, "/docProps/core.xml",
                     "application/vnd.openxmlformats-package.core-properties+xml");
    xml.End();
}

void StartRelations(XmlWriter& xml) {
    xml.Start("Relationships")
        .Attribute("xmlns", "http://schemas.openxmlformats.org/package/2006/relationships");
}

void WriteRelation(XmlWriter& xml, int number, std::string_view type, const std::string& target) {
    xml.Start("Relationship").Attribute("Id", std::string_view("rId" + std::to_string(number)));
    xml.Attribute("Type", type);
    xml.Attribute("Target", std::string_view(target)).End();
}

void WritePackageRelations(XmlWriter& xml) {
    StartRelations(xml);
    WriteRelation(xml, 1, Joined(kOfficeRelation, "officeDocument"), "word/document.xml");
    WriteRelation(
        xml, 2,
        "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties",
        "docProps/core.xml");
    xml.End();
}

void WriteDocumentRelations(XmlWriter& xml) {
    StartRelations(xml);
    int number = 0;
    for (const Part& part : kParts)
        WriteRelation(xml, ++number, Joined(kOfficeRelation, part.type), Joined(part.name, ".xml"));
    xml.End();
}

/// No times: the same data gives the same bytes.
void WriteProperties(XmlWriter& xml, const QString& title) {
    xml.Start("cp:coreProperties");
    xml.Attribute("xmlns:cp",
                  "http://schemas.openxmlformats.org/package/2006/metadata/core-properties");
    xml.Attribute("xmlns:dc", "http://purl.org/dc/elements/1.1/");
    xml.Start("dc:title").Text(title).End();
    xml.Start("dc:creator").Text(u"Lorvo").End();
    xml.Start("dc:language").Text(u"cs-CZ").End();
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
    xml.Empty("w:defaultTabStop", "w:val", kDefaultTabStop);
    WriteCompatibility(xml);
    xml.Empty("w:themeFontLang", "w:val", "cs-CZ");
    xml.Empty("w:decimalSymbol", "w:val", ",");
    xml.Empty("w:listSeparator", "w:val", ";");
    xml.End();
}

[[noreturn]] void FailToPack() {
    throw PlatformError("Dokument nelze sbalit: nedostatek paměti.");
}

/// A new zip file in memory. Texts added to it are read when it is closed, and live until then.
class ZipBytes {
  public:
    ZipBytes() : bytes_(zip_source_buffer_create(nullptr, 0, 0, nullptr)) {
        Require(bytes_ != nullptr);
        zip_.reset(zip_open_from_source(bytes_.get(), ZIP_TRUNCATE, nullptr));
        Require(zip_ != nullptr);
        zip_source_keep(bytes_.get()); // the archive takes it over, but its bytes are read later
    }

    void Add(const char* name, const QByteArray& text) {
        const auto size = static_cast<zip_uint64_t>(text.size());
        zip_source_t* source = zip_source_buffer(zip_.get(), text.constData(), size, 0);
        Require(source != nullptr);
        const zip_int64_t index = zip_file_add(zip_.get(), name, source, ZIP_FL_ENC_UTF_8);
        if (index < 0)
            zip_source_free(source);
        Require(index >= 0);
        const auto entry = static_cast<zip_uint64_t>(index);
        Require(zip_set_file_compression(zip_.get(), entry, ZIP_CM_DEFLATE, kDeflateLevel) == 0);
        Require(zip_file_set_dostime(zip_.get(), entry, 0, kEntryDate, 0) == 0);
    }

    QByteArray Close() {
        Require(zip_close(zip_.get()) == 0);
        zip_.release();
        zip_stat_t stat;
        zip_source_t* source = bytes_.get();
        Require(zip_source_stat(source, &stat) == 0 && zip_source_open(source) == 0);
        QByteArray bytes(static_cast<qsizetype>(stat.size), Qt::Uninitialized);
        const zip_int64_t read = zip_source_read(source, bytes.data(), stat.size);
        zip_source_close(source);
        Require(read == static_cast<zip_int64_t>(stat.size));
        return bytes;
    }

  private:
    static void Require(bool done) {
        if (!done)
            FailToPack();
    }

    struct FreeSource {
        void operator()(zip_source_t* source) const { zip_source_free(source); }
    };
    struct Discard {
        void operator()(zip_t* zip) const { zip_discard(zip); }
    };
    std::unique_ptr<zip_source_t, FreeSource> bytes_;
    std::unique_ptr<zip_t, Discard> zip_;
};

} // namespace

QByteArray PackDocument(const QString& title, const QByteArray& body, const Styles& styles,
                        const ViewSettings& view) {
    const std::pair<const char*, QByteArray> parts[] = {
        {"[Content_Types].xml", Xml(WriteContentTypes)},
        {"_rels/.rels", Xml(WritePackageRelations)},
        {"docProps/core.xml", Xml([&](XmlWriter& xml) { WriteProperties(xml, title); })},
        {"word/document.xml", body},
        {"word/_rels/document.xml.rels", Xml(WriteDocumentRelations)},
        {"word/styles.xml", Xml([&](XmlWriter& xml) { styles.WriteStyles(xml); })},
        {"word/settings.xml", Xml([&](XmlWriter& xml) { WriteSettings(xml, view); })},
        {"word/fontTable.xml", Xml([&](XmlWriter& xml) { styles.WriteFontTable(xml); })},
    };
    ZipBytes zip;
    for (const auto& [name, text] : parts)
        zip.Add(name, text);
    return zip.Close();
}

} // namespace lorvo::docx
