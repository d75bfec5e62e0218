#pragma once
// The office program that lays documents out, and the tools that look at what it made.

#include <QString>
#include <QStringList>

namespace lorvo::test {

/// Whether this machine has them.
bool HasOfficeProgram();

/// The fonts that a machine may have. None of the sets has the fonts that the documents name: the
/// first has some made to their widths, the second the printers' classic ones, the third wide ones.
enum class FontSet { Liberation, Urw, DejaVu };
inline constexpr FontSet kFontSets[] = {FontSet::Liberation, FontSet::Urw, FontSet::DejaVu};
/// "Liberation", ...
QString NameOf(FontSet fonts);

/// Lays the document out into a PDF beside it and returns its path. The program keeps its settings
/// in `profileFolder`, and sees no fonts but those of the set, whatever the machine has.
QString PdfOf(const QString& document, const QString& profileFolder,
              FontSet fonts = FontSet::Liberation);
/// The same for several documents at once; all PDFs come into `folder`, named as the documents.
void MakePdfs(const QStringList& documents, const QString& folder, const QString& profileFolder,
              FontSet fonts = FontSet::Liberation);

/// What pdfinfo and pdffonts tell of the PDF.
QString PdfInfo(const QString& pdf);
QString PdfFonts(const QString& pdf);
/// The text of each page's columns of that width, in points, one column after the other.
QStringList PdfColumns(const QString& pdf, int width, int columns);
/// The text of each page as it stands on the paper: what stands side by side is one line.
QStringList PdfPages(const QString& pdf);

} // namespace lorvo::test
