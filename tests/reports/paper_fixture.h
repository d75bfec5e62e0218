#pragma once
// A small fixed show and what a test of an export window needs.

#include "reports/export_window.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QLineEdit>
#include <QRadioButton>
#include <gtest/gtest.h>
#include <memory>

namespace lorvo::test {

class PaperFixture : public testing::Test {
  protected:
    PaperFixture();

    /// The templates as they are delivered, in the program's folder.
    void InstallTemplates();
    /// A template in the program's folder.
    void WriteTemplate(const QString& name, const QByteArray& text);
    /// A file below the program's folder; "no file" where there is none.
    QByteArray File(const QString& name) const;
    /// The output that most reports write.
    QByteArray Output() const { return File(QStringLiteral("Šablony/Výstup.html")); }

    /// Clicks the start button, on the route asked for.
    static void Start(QWidget& window, bool asTemplate);
    static void Click(QWidget& window, const char* button);
    /// Clicks the start button again as soon as the caption shows this figure ("50%").
    void StopAt(QWidget& window, const QString& figure);

    QString Operations() const { return platform.wordOperations.join(u'\n'); }
    /// The typed text: "¶" and a line break at the end of each paragraph, "--- page" at a page's.
    QString Text() const;

    RecordingPlatform platform;
    TempDatabase show;
};

/// Fails the test where the bytes are not those of the file in tests/reports/golden; with
/// LORVO_WRITE_GOLDEN in the environment it writes the file instead.
void ExpectGolden(const QString& name, const QByteArray& bytes);

} // namespace lorvo::test
