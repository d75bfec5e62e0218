#pragma once
// The office program that lays documents out, and the tools that look at what it made.

#include <QString>
#include <QStringList>

namespace lorvo::test {

/// Whether this machine has them.
bool HasOfficeProgram();

/// Lays the document out into a PDF beside it and returns its path. The program keeps its settings
/// in `profileFolder`.
QString PdfOf(const QString& document, const QString& profileFolder);
/// The same for several documents at once; all PDFs come into `folder`, named as the documents.
void MakePdfs(const QStringList& documents, const QString& folder, const QString& profileFolder);

/// What pdfinfo and pdffonts tell of the PDF.
QString PdfInfo(const QString& pdf);
QString PdfFonts(const QString& pdf);
/// The text of each page as it stands on the paper: what stands side by side is one line.
QStringList PdfPages(const QString& pdf);

} // namespace lorvo::test
