#include "reports/export_window.h"

#include "forms/controls.h"
#include "forms/messages.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"
#include "reports/document_message.h"

#include <QDir>
#include <QLabel>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kTag = "tag";
/// A stop request is seen within this time, however long a percent of the run takes.
constexpr qint64 kEventInterval = 50;
/// A figure stands at least this long: a fifth of a second for a whole run, nothing for a long one.
constexpr qint64 kFigureStands = 2;
/// Fewer rows are not worth stopping.
constexpr int kRowsToStop = 30;
/// Leaves the caption room for its progress figure.
constexpr int kMinimumWidth = 360;

QString UnderWay() {
    return u"jede"_s;
}

} // namespace

ExportWindow::ExportWindow(const ExportTraits& traits, QWidget* parent)
    : Form(traits.name, traits.caption, Border::Fixed, parent), traits_(traits),
      platform_(ThePlatform()) {}

QString ExportWindow::ProgramFile(const QString& name) const {
    return QDir(platform_.programFolder).filePath(name);
}

void ExportWindow::LayOut(QWidget* options) {
    chkHTML = Named(new QCheckBox(u"HTML formát"_s, this), u"chkHTML"_s);
    cmdOK = Named(new QPushButton(traits_.startCaption, this), u"cmdOK"_s);
    cmdCancel = Named(new QPushButton(traits_.closeCaption, this), u"cmdCancel"_s);
    Connect(cmdOK, &QPushButton::clicked, this, &ExportWindow::StartOrStop);
    Connect(cmdCancel, &QPushButton::clicked, this, &ExportWindow::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addStrut(kMinimumWidth);
    layout->addWidget(options);
    layout->addWidget(chkHTML, 0, Qt::AlignLeft);
    layout->addStretch();
    layout->addLayout(ButtonRow({cmdOK, cmdCancel}));
}

QWidget* ExportWindow::NoOptions(QWidget* above) {
    auto* area = new QWidget(this);
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins({});
    if (above)
        layout->addWidget(above);
    auto* options = new QGroupBox(u"Volby"_s, area);
    (new QVBoxLayout(options))->addWidget(new QLabel(u"(žádné volby)"_s, options));
    layout->addWidget(options);
    return area;
}

// kept: two-clicks-to-restart
// The tag outlives a run, so in a window that stays open the first click after a run only clears
// it, and the second one starts again.
void ExportWindow::StartOrStop() {
    const bool underWay = cmdOK->property(kTag).toString() == UnderWay();
    if (!underWay && running_)
        return; // stopped, but the run has not come to its end yet
    cmdOK->setProperty(kTag, underWay ? QString() : UnderWay());
    if (underWay)
        Stop();
    else
        Start();
}

void ExportWindow::Stop() {
    cmdOK->setText(u"Start"_s);
    if (traits_.stopEnablesClosing)
        cmdCancel->setEnabled(true);
    Preruseno = true;
}

void ExportWindow::Start() {
    const bool asTemplate = chkHTML->isChecked();
    const QString captionBefore = windowTitle();
    QString failure;
    cmdOK->setText(u"Přerušit"_s);
    cmdCancel->setEnabled(asTemplate && !traits_.templateDisablesClosing);
    try {
        Run(asTemplate);
        Finished();
    } catch (const Error& error) {
        RethrowFailure(); // it came from another window's handler
        failure = QString::fromUtf8(error.what());
    }
    setWindowTitle(failure.isEmpty() ? traits_.title : captionBefore);
    cmdCancel->setEnabled(true);
    cmdOK->setText(u"Start"_s);
    if (!failure.isEmpty())
        ShowFailure(failure);
    else if (asTemplate ? traits_.closesAfterTemplate : traits_.closesAfterDocument)
        closeAfterRun_ = true;
    if (closeAfterRun_)
        close();
}

void ExportWindow::Run(bool asTemplate) {
    struct RunningFlag {
        explicit RunningFlag(bool& value) : flag(value) { flag = true; }
        ~RunningFlag() { flag = false; }
        bool& flag;
    };
    const RunningFlag running(running_);
    Preruseno = false;
    shownPercent_ = -1;
    sinceEvents_.start();
    if (asTemplate)
        RunTemplate();
    else
        RunDocument();
}

void ExportWindow::RunDocument() {
    ShownDocument document;
    {
        const WaitCursor wait = Waiting();
        const auto word = platform_.wordProcessors->Create(traits_.paper);
        TypeDocument(*word);
        document = word->Show();
    }
    TellWhenNotOpened(document, traits_.caption);
}

void ExportWindow::ShowFailure(const QString& reason) {
    cmdOK->setProperty(kTag, QString());
    Refuse(*this, reason);
}

bool ExportWindow::Advance(int row, int rows) {
    const int percent = static_cast<int>(qint64(row) * 100 / rows);
    const bool newFigure = percent != shownPercent_;
    if (newFigure) {
        // A short run would be over before its figures were painted and its stop button heard.
        const bool isFollowed = rows >= kRowsToStop && shownPercent_ >= 0;
        while (isFollowed && !Preruseno && !sinceEvents_.hasExpired(kFigureStands))
            platform_.ui->ProcessEvents();
        setWindowTitle(traits_.title + traits_.progressText + QString::number(percent) + u'%');
    }
    shownPercent_ = percent;
    if (newFigure || sinceEvents_.hasExpired(kEventInterval)) {
        platform_.ui->ProcessEvents();
        sinceEvents_.restart();
    }
    return !Preruseno;
}

void ExportWindow::RunTemplate() {
    if (traits_.templateFile.isEmpty())
        return;
    const ReportTemplate pattern = ReadTemplate(TemplateKind::Rows);
    if (!CheckTemplate(pattern))
        return;
    QByteArray output = pattern.Top();
    AppendRows(output, pattern);
    output += pattern.Bottom();
    WriteAndOpen(output);
}

void ExportWindow::AppendRows(QByteArray&, const ReportTemplate&) {}

ReportTemplate ExportWindow::ReadTemplate(TemplateKind kind) const {
    return ReportTemplate::Read(ProgramFile(traits_.templateFile), kind);
}

bool ExportWindow::CheckTemplate(const ReportTemplate& pattern) const {
    const ReportTemplate::Fault fault = pattern.Check();
    if (fault == ReportTemplate::Fault::None)
        return true;
    platform_.messages->Show(fault == ReportTemplate::Fault::MarkerMissing
                                 ? u"Šablona poškozena, položka nebyla nalezena."_s
                                 : u"Šablona poškozena, nesouhlasí pořadí položek."_s,
                             MessageIcon::None, MessageButtons::Ok, u"Lorvo"_s);
    return false;
}

void ExportWindow::WriteAndOpen(const QByteArray& output) const {
    const QString path = ProgramFile(traits_.outputFile);
    platform_.ui->ProcessEvents();
    ReplaceFile(path, output);
    // A page that nothing opens is no failure: it lies where the clerk knows it.
    (void)platform_.opener->OpenFile(path);
}

bool ExportWindow::QueryUnload() {
    if (running_) {
        Preruseno = true;
        closeAfterRun_ = true;
    }
    return !running_;
}

} // namespace lorvo
