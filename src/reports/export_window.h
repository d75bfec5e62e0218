#pragma once
// The frame of the windows that put a paper out: one button starts and stops, a check box chooses
// between a page in the browser and a document in the word processor.

#include "forms/form.h"
#include "office/papers/run_progress.h"
#include "office/papers/template_engine.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QPushButton>

namespace lorvo {

struct Platform;
class WordProcessor;

/// What the frame needs to know of a report.
struct ExportTraits {
    const char* name;     ///< of the window
    QString caption;      ///< of the window when it opens
    QString title;        ///< of the progress figure, and the caption after a run
    QString startCaption; ///< of cmdOK before the first run
    QString closeCaption; ///< of cmdCancel
    QString paper;        ///< what its document is called

    // Files below the program's folder, for reports with a template.
    QString templateFile{};
    QString outputFile{};

    bool closesAfterTemplate = false;
    bool closesAfterDocument = false;
    bool templateDisablesClosing = true; ///< cmdCancel is disabled during a template run
    bool stopEnablesClosing = true;      ///< a stop request enables cmdCancel at once
    QString progressText = QStringLiteral(" - Generuji výpis - "); ///< between title and figure
};

class ExportWindow : public Form, public RunProgress {
    Q_OBJECT
  public:
    bool Advance(int row, int rows) override;

  protected:
    ExportWindow(const ExportTraits& traits, QWidget* parent);
    /// Makes the common controls and puts the report's own options above them; the last step of
    /// a constructor, so that the Tab key comes to the options first.
    void LayOut(QWidget* options);
    /// The frame of a report without options, for LayOut, with something else above it.
    QWidget* NoOptions(QWidget* above = nullptr);

    /// Types the whole document; showing it is the frame's.
    virtual void TypeDocument(WordProcessor& word) = 0;
    /// Appends the filled copies of the template's row pattern.
    virtual void AppendRows(QByteArray& output, const ReportTemplate& pattern);
    /// The template route: reads and checks the template, puts the output together, opens it.
    virtual void RunTemplate();
    /// A run has come to its end: it went through, was stopped, or met a broken template.
    virtual void Finished() {}

    /// The report's template, read afresh.
    ReportTemplate ReadTemplate(TemplateKind kind) const;
    /// A box that names what is wrong with the template; true when nothing is.
    [[nodiscard]] bool CheckTemplate(const ReportTemplate& pattern) const;
    /// Writes the report's output file and hands it to the desktop.
    void WriteAndOpen(const QByteArray& output) const;
    bool IsStopped() const { return Preruseno; }

    /// A window whose run is under way closes when the run has ended, which is asked to stop.
    bool QueryUnload() override;
    /// A report's paragraphs go into no field of the store.
    int LongestTypedText() const override { return 32767; }

    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QCheckBox* chkHTML = nullptr;

  private:
    void StartOrStop();
    void Stop();
    void Start();
    void Run(bool asTemplate);
    void RunDocument();
    void ShowFailure(const QString& reason);
    /// A file below the program's folder.
    QString ProgramFile(const QString& name) const;

    const ExportTraits traits_;
    const Platform& platform_;
    bool Preruseno = false;
    bool running_ = false;
    bool closeAfterRun_ = false;
    int shownPercent_ = -1;
    QElapsedTimer sinceEvents_;
};

} // namespace lorvo
