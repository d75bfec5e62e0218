#include "mainwindow/about_panel.h"

#include "app/version.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"

#include <QEvent>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPictureSize = 256;

QString MailAddress() {
    return u"lorvo@hollowpeak.example"_s;
}

QString VersionText(const QString& pattern) {
    return pattern.arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision);
}

} // namespace

AboutPanel::AboutPanel(QWidget* parent)
    : QWidget(parent), imgBkg(Named(new QLabel(this), u"imgBkg"_s)),
      lbl_About(Named(new QLabel(this), u"lbl_About"_s)),
      lbl_Ver(Named(new QLabel(this), u"lbl_Ver"_s)),
      lbl_copyright(Named(new QLabel(QString::fromUtf8(kCopyright), this), u"lbl_copyright"_s)),
      lbl_Mailto(Named(new LinkLabel(u"Tým Lorvo, Hollow Peak"_s, this), u"lbl_Mailto"_s)),
      Label9(Named(new QLabel(u"Věnováno všem, kdo v kanceláři výstavy drží pořádek."_s, this),
                   u"Label9"_s)) {
    setObjectName(u"picAbout"_s);
    imgBkg->setPixmap(
        ProgramIcon(u"lorvo"_s).pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
    imgBkg->resize(kPictureSize, kPictureSize);
    LayOut();
    lbl_Mailto->installEventFilter(this);
    Label9->installEventFilter(this);
    Connect(lbl_Mailto, &LinkLabel::Clicked, this, &AboutPanel::WriteToAuthor);
}

void AboutPanel::LayOut() {
    QFont large = lbl_About->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    lbl_About->setFont(large);
    auto* lines = new QVBoxLayout(this);
    Label9->setWordWrap(true);
    for (QWidget* line : std::initializer_list<QWidget*>{lbl_About, lbl_Ver, lbl_copyright})
        lines->addWidget(line);
    lines->addSpacing(fontMetrics().height());
    lines->addWidget(lbl_Mailto, 0, Qt::AlignLeft);
    lines->addWidget(Label9);
    lines->addStretch();
}

void AboutPanel::ShowVersion() {
    lbl_About->setText(u"Lorvo"_s);
    lbl_Ver->setText(VersionText(u"Verze %1.%2 build %3"_s));
}

void AboutPanel::WriteToAuthor() {
    const QString subject = VersionText(u"Lorvo_%1.%2.%3"_s);
    ThePlatform().opener->OpenAddress(u"mailto:%1?subject=%2"_s.arg(MailAddress(), subject));
}

bool AboutPanel::eventFilter(QObject* watched, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        const bool overLink = watched == lbl_Mailto;
        if (overLink && event->type() == QEvent::Enter)
            Q_EMIT MailAddressShown(MailAddress());
        else if (event->type() == (overLink ? QEvent::Leave : QEvent::Enter))
            Q_EMIT MailAddressHidden();
        return QWidget::eventFilter(watched, event);
    });
}

void AboutPanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    imgBkg->move((width() - imgBkg->width()) / 2, (height() - imgBkg->height()) / 2);
    imgBkg->lower();
}

} // namespace lorvo
