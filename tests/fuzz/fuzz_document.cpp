// Any bytes as what is typed into a document: the text that comes out is XML that a parser takes.

#include "fuzz/fuzz_target.h"

#include "platform/docx/xml_writer.h"

#include <QBuffer>
#include <QXmlStreamReader>
#include <cstdlib>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    lorvo::docx::XmlWriter xml(device);
    xml.Start("w:p").Start("w:t").Attribute("w:val", text).Text(text).End().End();
    xml.Finish();
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        std::abort();
    return 0;
}
